#ifndef RUQGUI_TESTS_DIFFERENTIAL_USER_H
#define RUQGUI_TESTS_DIFFERENTIAL_USER_H

#include <ScriptedUser.h>
#include <functional>
#include <string>

namespace differential {

/// Answers dialogs and boxes at once; a line of the log tells of each. Without an answer it cancels.
class User : public ScriptedUser {
public:
    explicit User(std::function<void(const std::string&)> tell) : m_tell(std::move(tell)) {}

    using ScriptedUser::forgetAnswers;

protected:
    void note(const std::string& line) override { m_tell(line); }

private:
    std::function<void(const std::string&)> m_tell;
};

} // namespace differential

#endif
