#ifndef RUQLIB2CORE_CEXBADPARAM_H
#define RUQLIB2CORE_CEXBADPARAM_H

#include <ruqlib2core/CException.h>

namespace TEVU {

/// A parameter that a function cannot work with: a fault of the calling code, with the place in the
/// source that noticed it.
class RUQLIB2CORE_EXPORT CExBadParam : public CException {
public:
    /// \a buildStamp is when the noticing library was built, such as "Jan 31 2024-12:30:59".
    CExBadParam(const std::string& message, const std::string& buildStamp, const std::string& file,
                const std::string& function, int line);
    CExBadParam(const CExBadParam& other);
    CExBadParam& operator=(const CExBadParam& other);
    ~CExBadParam() override;

    /// Place() is the function; what() is "function: message (file:line, built buildStamp)".
    const std::string& BuildStamp() const;
    const std::string& File() const;
    const std::string& Function() const;
    int Line() const;

private:
    std::string m_sBuildStamp;
    std::string m_sFile;
    int m_nLine;
};

} // namespace TEVU

#endif
