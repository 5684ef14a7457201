#include "HeaderToolsJournal.h"

#include "JournalledTools.h"

#include <HiddenFunction.h>
#include <ruqlib2core/CValueString.h>
#include <sstream>
#include <utility>

using namespace TEVU;
using support::Hidden;

namespace {

HeaderToolsJournal* s_journal = nullptr;

bool s_bInsideATool = false;

void note(const std::string& call) {
    if (s_journal && !s_bInsideATool)
        s_journal->add(call);
}

std::string withText(const char* name, const char* text, unsigned int length) {
    return std::string(name) + '(' + (text ? std::string(text, length) : std::string()) + ')';
}

/// While it lives, what the tools call in turn is their own affair.
class InsideATool {
public:
    InsideATool() : m_bOuter(std::exchange(s_bInsideATool, true)) {}
    InsideATool(const InsideATool&) = delete;
    InsideATool& operator=(const InsideATool&) = delete;
    ~InsideATool() { s_bInsideATool = m_bOuter; }

private:
    bool m_bOuter;
};

const Hidden s_getSpacing("_ZN4TEVU16COrunHeaderTools10GetSpacingERKNS_6IImageERdS4_S4_",
                          &journal::GetSpacing);
const Hidden s_setSpacing("_ZN4TEVU16COrunHeaderTools10SetSpacingERNS_6IImageEddd",
                          &journal::SetSpacing);
const Hidden s_getCreator("_ZN4TEVU16COrunHeaderTools10GetCreatorERKNS_6IImageE"
                          "RNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE",
                          &journal::GetCreator);
const Hidden s_setCreator("_ZN4TEVU16COrunHeaderTools10SetCreatorERNS_6IImageEPKcj",
                          &journal::SetCreator);
const Hidden s_getDescription("_ZN4TEVU16COrunHeaderTools14GetDescriptionERKNS_6IImageE"
                              "RNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE",
                              &journal::GetDescription);
const Hidden s_setDescription("_ZN4TEVU16COrunHeaderTools14SetDescriptionERNS_6IImageEPKcj",
                              &journal::SetDescription);
const Hidden s_getHistory("_ZN4TEVU16COrunHeaderTools10GetHistoryERKNS_6IImageE"
                          "RNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE",
                          &journal::GetHistory);
const Hidden s_replaceHistory("_ZN4TEVU16COrunHeaderTools14ReplaceHistoryERNS_6IImageEPKcj",
                              &journal::ReplaceHistory);
const Hidden s_addToHistory("_ZN4TEVU16COrunHeaderTools12AddToHistoryERNS_6IImageERKNS_12"
                            "CValueStringE",
                            &journal::AddToHistory);

} // namespace

HeaderToolsJournal::HeaderToolsJournal() {
    s_journal = this;
}

HeaderToolsJournal::~HeaderToolsJournal() {
    s_journal = nullptr;
}

support::Lines HeaderToolsJournal::take() {
    return std::exchange(m_vCalls, {});
}

void HeaderToolsJournal::failGetSpacing(double left) {
    m_bGetSpacingFails = true;
    m_dLeftBehind = left;
}

namespace journal {

bool GetSpacing(const IImage& image, double& x, double& y, double& z) {
    note("GetSpacing");
    if (s_journal && s_journal->m_bGetSpacingFails) {
        x = y = z = s_journal->m_dLeftBehind;
        return false;
    }
    const InsideATool inside;
    return s_getSpacing(image, x, y, z);
}

void SetSpacing(IImage& image, double x, double y, double z) {
    std::ostringstream call;
    call << "SetSpacing(" << x << ',' << y << ',' << z << ')';
    note(call.str());
    const InsideATool inside;
    s_setSpacing(image, x, y, z);
}

bool GetCreator(const IImage& image, std::string& creator) {
    note("GetCreator");
    const InsideATool inside;
    return s_getCreator(image, creator);
}

void SetCreator(IImage& image, const char* text, unsigned int length) {
    note(withText("SetCreator", text, length));
    const InsideATool inside;
    s_setCreator(image, text, length);
}

bool GetDescription(const IImage& image, std::string& description) {
    note("GetDescription");
    const InsideATool inside;
    return s_getDescription(image, description);
}

void SetDescription(IImage& image, const char* text, unsigned int length) {
    note(withText("SetDescription", text, length));
    const InsideATool inside;
    s_setDescription(image, text, length);
}

bool GetHistory(const IImage& image, std::string& history) {
    note("GetHistory");
    const InsideATool inside;
    return s_getHistory(image, history);
}

void ReplaceHistory(IImage& image, const char* text, unsigned int length) {
    note(withText("ReplaceHistory", text, length));
    const InsideATool inside;
    s_replaceHistory(image, text, length);
}

void AddToHistory(IImage& image, const CValueString& entry) {
    note("AddToHistory(" + entry.String() + ')');
    const InsideATool inside;
    s_addToHistory(image, entry);
}

} // namespace journal
