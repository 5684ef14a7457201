#include "OpenImages.h"

#include <algorithm>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <utility>

using namespace TEVU;

OpenImages::OpenImages() : m_pElements(new CValueVector) {
    m_input.SetEntry("input/documents/available", m_pElements);
}

void OpenImages::Add(const std::string& label, CImage image) {
    const auto same =
        std::count_if(m_documents.begin(), m_documents.end(),
                      [&](const StDocument& document) { return document.sLabel == label; });
    m_documents.push_back({label, std::move(image), CValueMap()});
    StDocument& added = m_documents.back();
    added.record.SetEntry("label", new CValueString(label));
    added.record.SetEntry("index", new CValueLong(static_cast<long>(same) + 1));
    added.record.SetEntry("content", new CValuePointer<CImage>(&added.image));
    m_pElements->SetEntry(static_cast<int>(m_documents.size()) - 1,
                          new CValuePointer<CValueMap>(&added.record));
}
