#ifndef RUQLIB2CORE_CEXCEPTION_H
#define RUQLIB2CORE_CEXCEPTION_H

#include <ruqlib2core/Export.h>

#include <exception>
#include <memory>
#include <string>

namespace TEVU {

/// A failure: where it was noticed, what it is, and what caused it.
class RUQLIB2CORE_EXPORT CException : public std::exception {
public:
    /// \a cause is copied and may be null. Of a derived class its what() is kept.
    CException(const std::string& place, const std::string& message,
               const CException* cause = nullptr);
    CException(const CException& other);
    CException& operator=(const CException& other);
    ~CException() override;

    const std::string& Place() const;
    const std::string& Message() const;

    /// Null when there is none. It belongs to this exception and its copies.
    const CException* Cause() const;

    const char* what() const noexcept override; ///< "place: message"; the cause is no part of it.

protected:
    /// For a derived class whose what() says more.
    CException(const std::string& place, const std::string& message, const std::string& what);

private:
    std::string m_sPlace;
    std::string m_sMessage;
    std::string m_sWhat;
    std::shared_ptr<const CException> m_pCause;
};

} // namespace TEVU

#endif
