#include "CValueMapFileVersionHandling.h"

#include "FormatRules.h"
#include "MessageText.h"

#include <iostream>
#include <qt3/Application.h>
#include <qt3/MessageBox.h>
#include <qt3/Text.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <typeinfo>

namespace TEVU {

namespace {

const char* const c_sId = "id";
const char* const c_sVersion = "version";

bool hasText(const CValueMap& map, const char* key) {
    return map.HasEntry(key, typeid(CValueString));
}

std::string orEmpty(const char* text) {
    return text ? text : "";
}

/// One check of a loaded map: what its messages have in common.
class CReport {
public:
    CReport(const char* fileName, const char* formatName, const char* context)
        : m_sFile(orEmpty(fileName)), m_sFormat(orEmpty(formatName)), m_sContext(orEmpty(context)) {
    }

    void ForeignFile(const std::string& id) const {
        const std::string text = Text("Failed to load %1: not a %2 file, but of type '%3'.", id);
        qt3::MessageBox::warning(qt3::mainWidget(), Caption("Format error of %1"),
                                 qt3::fromAscii(text), qt3::MessageBox::Ok, 0);
    }

    bool LoadsRelatedFile(const std::string& id) const {
        const std::string text = Text("File %1: not a %2 file, but of type '%3'. Load anyway?", id);
        return qt3::MessageBox::information(qt3::mainWidget(), Caption("Format error of %1"),
                                            qt3::fromAscii(text), qt3::MessageBox::Ok,
                                            qt3::MessageBox::Cancel | qt3::MessageBox::Escape) !=
               qt3::MessageBox::Cancel;
    }

    void FutureVersion() const {
        const std::string text = Text("File %1: Future version of %2 file format  detected.\n"
                                      "Some features my be unsupported",
                                      "");
        qt3::MessageBox::information(qt3::mainWidget(),
                                     Caption("Future version of %1 file format  detected"),
                                     qt3::fromAscii(text), qt3::MessageBox::Ok);
    }

private:
    /// Writes the text to standard error as well: before its box, which waits.
    std::string Text(const char* pattern, const std::string& id) const {
        const std::string text = filledIn(pattern, {m_sFile, m_sFormat, id});
        std::cerr << m_sContext << ": " << text << std::endl;
        return text;
    }

    QString Caption(const char* pattern) const {
        return qt3::fromAscii(filledIn(pattern, {m_sFormat}));
    }

    std::string m_sFile;
    std::string m_sFormat;
    std::string m_sContext;
};

} // namespace

CValueMapFileVersionHandling::CValueMapFileVersionHandling(const std::string& identifier,
                                                           const std::string& version)
    : m_sIdentifier(identifier), m_sVersion(version),
      m_sFamily(splitIdentifier(identifier).sFamily),
      m_sRemainder(splitIdentifier(identifier).sRemainder) {}

CValueMapFileVersionHandling::CValueMapFileVersionHandling(
    const CValueMapFileVersionHandling& other) = default;
CValueMapFileVersionHandling&
CValueMapFileVersionHandling::operator=(const CValueMapFileVersionHandling& other) = default;
CValueMapFileVersionHandling::~CValueMapFileVersionHandling() = default;

void CValueMapFileVersionHandling::AddIdVersion(CValueMap& map) const {
    map.SetEntry(c_sId, new CValueString(m_sIdentifier));
    map.SetEntry(c_sVersion, new CValueString(m_sVersion));
}

void CValueMapFileVersionHandling::RemoveIdVersion(CValueMap& map) const {
    map.RemoveEntry(c_sId);
    map.RemoveEntry(c_sVersion);
}

bool CValueMapFileVersionHandling::IsIdAvailable(const CValueMap& map) const {
    return hasText(map, c_sId);
}

std::string CValueMapFileVersionHandling::GetId(const CValueMap& map) {
    return map.EntryString(c_sId);
}

bool CValueMapFileVersionHandling::IsIdOk(const CValueMap& map) const {
    return GetId(map) == m_sIdentifier;
}

bool CValueMapFileVersionHandling::IsIdCompatible(const CValueMap& map) const {
    return splitIdentifier(GetId(map)).sFamily == m_sFamily;
}

bool CValueMapFileVersionHandling::IsAFutureFormatVersion(const CValueMap& map) const {
    return hasText(map, c_sVersion) && isFutureVersion(map.EntryString(c_sVersion), m_sVersion);
}

bool CValueMapFileVersionHandling::VerifyLoadedMapWithErrorMessageBox(CValueMap& map,
                                                                      const char* fileName,
                                                                      const char* formatName,
                                                                      const char* context) {
    if (!IsIdAvailable(map))
        return true; // from before there were stamps
    const CReport report(fileName, formatName, context);
    if (!IsIdOk(map)) {
        if (!IsIdCompatible(map)) {
            report.ForeignFile(GetId(map));
            return false;
        }
        if (!report.LoadsRelatedFile(GetId(map)))
            return false;
    }
    if (IsAFutureFormatVersion(map))
        report.FutureVersion();
    RemoveIdVersion(map);
    return true;
}

} // namespace TEVU
