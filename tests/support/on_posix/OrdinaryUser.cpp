#include "OrdinaryUser.h"

#include "TempDir.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <link.h>
#include <pwd.h>
#include <set>
#include <unistd.h>

namespace support {

namespace {

namespace fs = std::filesystem;

struct User {
    uid_t id;
    gid_t group;
};

User ordinaryUser() {
    const passwd* nobody = getpwnam("nobody");
    return nobody ? User{nobody->pw_uid, nobody->pw_gid} : User{65534, 65534};
}

void giveAway(const std::string& path, const User& user) {
    EXPECT_EQ(chown(path.c_str(), user.id, user.group), 0) << path;
}

// The key to the display is readable for its owner only.
void bringDisplayKey(const std::string& to, const User& user) {
    const char* key = std::getenv("XAUTHORITY");
    if (!key || !fs::exists(key))
        return;
    fs::copy_file(key, to);
    giveAway(to, user);
    setenv("XAUTHORITY", to.c_str(), true);
}

int collectFolder(dl_phdr_info* object, std::size_t, void* folders) {
    const fs::path file(object->dlpi_name);
    if (file.is_absolute())
        static_cast<std::set<std::string>*>(folders)->insert(file.parent_path());
    return 0;
}

// The build may lie where the other user cannot go, as below the home of root. What is open already is
// reached all the same: so the libraries are looked for by way of their folders' open handles.
void bringLibraries() {
    std::set<std::string> folders;
    dl_iterate_phdr(collectFolder, &folders);
    std::string searched;
    for (const std::string& folder : folders) {
        const int handle = ::open(folder.c_str(), O_PATH | O_DIRECTORY);
        if (handle >= 0)
            searched += "/proc/self/fd/" + std::to_string(handle) + ':';
    }
    setenv("LD_LIBRARY_PATH", searched.c_str(), true);
}

bool become(const User& user) {
    return setgroups(0, nullptr) == 0 && setgid(user.group) == 0 && setuid(user.id) == 0;
}

bool enterAs(const User& user, const TempDir& home) {
    bringDisplayKey(home.path("Xauthority"), user);
    giveAway(home.path(), user);
    setenv("HOME", home.path().c_str(), true);
    setenv("XDG_RUNTIME_DIR", home.path().c_str(), true);
    bringLibraries();
    return chdir(home.path().c_str()) == 0 && become(user);
}

} // namespace

bool isSuperuser() {
    return geteuid() == 0;
}

Outcome runCurrentTestAsOrdinaryUser() {
    const TempDir home;
    return rerunCurrentTest([&home] { return enterAs(ordinaryUser(), home); });
}

} // namespace support
