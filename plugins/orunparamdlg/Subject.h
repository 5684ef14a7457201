#ifndef RUQGUI_ORUNPARAMDLG_SUBJECT_H
#define RUQGUI_ORUNPARAMDLG_SUBJECT_H

#include <string>

namespace autodlg {

/// What a complaint is about, in words: an entry of the description, a key in it, or a parameter.
/// \code
/// const Subject entry("entry \"sigma\"");
/// entry.part("min").refuse("is missing"); // entry "sigma": "min" is missing
/// \endcode
class Subject {
public:
    explicit Subject(const std::string& words);

    Subject part(const std::string& key) const;

    /// Throws a CException whose message is this subject and \a complaint.
    [[noreturn]] void refuse(const std::string& complaint) const;

private:
    std::string m_sWords;
};

} // namespace autodlg

#endif
