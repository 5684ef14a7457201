#include <ruqlib2core/CException.h>

namespace TEVU {

CException::CException(const std::string& place, const std::string& message,
                       const CException* cause)
    : CException(place, message, place + ": " + message) {
    if (cause)
        m_pCause = std::make_shared<const CException>(*cause);
}

CException::CException(const std::string& place, const std::string& message,
                       const std::string& what)
    : m_sPlace(place), m_sMessage(message), m_sWhat(what) {}

CException::CException(const CException& other) = default;
CException& CException::operator=(const CException& other) = default;
CException::~CException() = default;

const std::string& CException::Place() const {
    return m_sPlace;
}

const std::string& CException::Message() const {
    return m_sMessage;
}

const CException* CException::Cause() const {
    return m_pCause.get();
}

const char* CException::what() const noexcept {
    return m_sWhat.c_str();
}

} // namespace TEVU
