#include <ruqlib2core/CValueString.h>

namespace TEVU {

namespace {

std::string bytesOf(const char* text, std::size_t length) {
    if (!text)
        return std::string();
    return length == CString::NPOS ? std::string(text) : std::string(text, length);
}

} // namespace

CValueString::CValueString(const std::string& value) : m_sValue(value) {}

CValueString::CValueString(const char* text, std::size_t length)
    : m_sValue(bytesOf(text, length)) {}

const std::string& CValueString::String() const {
    return m_sValue;
}

CValue::EnGenericType CValueString::GenericType() const {
    return eString;
}

CValueString* CValueString::Clone() const {
    return new CValueString(*this);
}

} // namespace TEVU
