#ifndef RUQGUI_TESTS_SUPPORT_TEMPDIR_H
#define RUQGUI_TESTS_SUPPORT_TEMPDIR_H

#include <string>

namespace support {

/// A fresh folder that goes with this object, also if permissions have been taken away inside.
/// \code
/// const support::TempDir dir;
/// const std::string path = dir.writeFile("a.tif", "II*");
/// dir.setPermissions("a.tif", 0000);
/// \endcode
/// Names are relative to the folder. What cannot be done fails the test.
class TempDir {
public:
    TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    ~TempDir();

    /// Absolute, without links in it and without a slash at the end.
    const std::string& path() const { return m_sPath; }
    std::string path(const std::string& name) const { return m_sPath + '/' + name; }

    /// All three give the path of what they made.
    std::string makeFolder(const std::string& name) const; ///< With the folders above it.
    std::string writeFile(const std::string& name, const std::string& content = "") const;
    std::string makeLink(const std::string& name, const std::string& target) const;

    std::string read(const std::string& name) const; ///< "" if there is no such file.
    bool exists(const std::string& name) const;
    void remove(const std::string& name) const; ///< A file, or a folder with all that is in it.

    /// As chmod takes them. For the superuser they forbid nothing: see RUN_AS_ORDINARY_USER().
    void setPermissions(const std::string& name, unsigned mode) const;

private:
    std::string m_sPath;
};

} // namespace support

#endif
