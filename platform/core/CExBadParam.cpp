#include <ruqlib2core/CExBadParam.h>

namespace TEVU {

CExBadParam::CExBadParam(const std::string& message, const std::string& buildStamp,
                         const std::string& file, const std::string& function, int line)
    : CException(function, message,
                 function + ": " + message + " (" + file + ":" + std::to_string(line) + ", built " +
                     buildStamp + ")"),
      m_sBuildStamp(buildStamp), m_sFile(file), m_nLine(line) {}

CExBadParam::CExBadParam(const CExBadParam& other) = default;
CExBadParam& CExBadParam::operator=(const CExBadParam& other) = default;
CExBadParam::~CExBadParam() = default;

const std::string& CExBadParam::BuildStamp() const {
    return m_sBuildStamp;
}

const std::string& CExBadParam::File() const {
    return m_sFile;
}

const std::string& CExBadParam::Function() const {
    return Place();
}

int CExBadParam::Line() const {
    return m_nLine;
}

} // namespace TEVU
