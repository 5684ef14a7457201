#include "OrdinaryChild.h"

#include "TestFolder.h"

#include <ChildTask.h>

#include <stdexcept>
#include <unistd.h>

using support::ChildProcess;

namespace {

using Task = std::string (*)(const ChildProcess::Arguments&);

std::string becomeOrdinaryAndRun(const ChildProcess::Arguments& arguments) {
    const auto user = TestFolder::c_nOrdinaryUser;
    if (::geteuid() == 0 && (::setgid(user) != 0 || ::setuid(user) != 0))
        throw std::runtime_error("cannot become another user");
    return reinterpret_cast<Task>(support::functionOf(arguments.front()))(
        {arguments.begin() + 1, arguments.end()});
}

} // namespace

ChildProcess::Outcome asOrdinaryUser(Task task, const ChildProcess::Arguments& arguments) {
    ChildProcess::Arguments all = {support::textOf(reinterpret_cast<support::AnyFunction>(task))};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return support::inChild(becomeOrdinaryAndRun, all);
}
