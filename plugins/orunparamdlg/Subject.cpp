#include "Subject.h"

#include <ruqlib2core/CException.h>

namespace autodlg {

Subject::Subject(const std::string& words) : m_sWords(words) {}

Subject Subject::part(const std::string& key) const {
    return Subject(m_sWords + ": \"" + key + '"');
}

void Subject::refuse(const std::string& complaint) const {
    throw TEVU::CException("plugwdgt_orunparamdlg::autodlg", m_sWords + ' ' + complaint);
}

} // namespace autodlg
