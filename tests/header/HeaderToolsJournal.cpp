#include "HeaderToolsJournal.h"

#include <dlfcn.h>
#include <ruqlib2image/COrunHeaderTools.h>
#include <sstream>
#include <utility>

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

/// Calls the tool of the image library, which the one of that name in this program hides. What it
/// calls in turn is its own affair.
template <class Result, class... Parameters, class... Arguments>
Result forward(Result (*)(Parameters...), const char* symbol, Arguments&&... arguments) {
    const bool bOuter = std::exchange(s_bInsideATool, true);
    struct Leave {
        bool bOuter;
        ~Leave() { s_bInsideATool = bOuter; }
    } leave{bOuter};
    auto* tool = reinterpret_cast<Result (*)(Parameters...)>(dlsym(RTLD_NEXT, symbol));
    return tool(std::forward<Arguments>(arguments)...);
}

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

// A program's own definition of a function goes before that of the shared library, for all callers.
// The symbols are the compiler's names of the functions they stand in.
namespace TEVU {

bool COrunHeaderTools::GetSpacing(const IImage& image, double& x, double& y, double& z) {
    note("GetSpacing");
    if (s_journal && s_journal->m_bGetSpacingFails) {
        x = y = z = s_journal->m_dLeftBehind;
        return false;
    }
    return forward(&GetSpacing, "_ZN4TEVU16COrunHeaderTools10GetSpacingERKNS_6IImageERdS4_S4_",
                   image, x, y, z);
}

void COrunHeaderTools::SetSpacing(IImage& image, double x, double y, double z) {
    std::ostringstream call;
    call << "SetSpacing(" << x << ',' << y << ',' << z << ')';
    note(call.str());
    forward(&SetSpacing, "_ZN4TEVU16COrunHeaderTools10SetSpacingERNS_6IImageEddd", image, x, y, z);
}

bool COrunHeaderTools::GetCreator(const IImage& image, std::string& creator) {
    note("GetCreator");
    return forward(&GetCreator,
                   "_ZN4TEVU16COrunHeaderTools10GetCreatorERKNS_6IImageE"
                   "RNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE",
                   image, creator);
}

void COrunHeaderTools::SetCreator(IImage& image, const char* text, unsigned int length) {
    note(withText("SetCreator", text, length));
    forward(&SetCreator, "_ZN4TEVU16COrunHeaderTools10SetCreatorERNS_6IImageEPKcj", image, text,
            length);
}

bool COrunHeaderTools::GetDescription(const IImage& image, std::string& description) {
    note("GetDescription");
    return forward(&GetDescription,
                   "_ZN4TEVU16COrunHeaderTools14GetDescriptionERKNS_6IImageE"
                   "RNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE",
                   image, description);
}

void COrunHeaderTools::SetDescription(IImage& image, const char* text, unsigned int length) {
    note(withText("SetDescription", text, length));
    forward(&SetDescription, "_ZN4TEVU16COrunHeaderTools14SetDescriptionERNS_6IImageEPKcj", image,
            text, length);
}

bool COrunHeaderTools::GetHistory(const IImage& image, std::string& history) {
    note("GetHistory");
    return forward(&GetHistory,
                   "_ZN4TEVU16COrunHeaderTools10GetHistoryERKNS_6IImageE"
                   "RNSt7__cxx1112basic_stringIcSt11char_traitsIcESaIcEEE",
                   image, history);
}

void COrunHeaderTools::ReplaceHistory(IImage& image, const char* text, unsigned int length) {
    note(withText("ReplaceHistory", text, length));
    forward(&ReplaceHistory, "_ZN4TEVU16COrunHeaderTools14ReplaceHistoryERNS_6IImageEPKcj", image,
            text, length);
}

void COrunHeaderTools::AddToHistory(IImage& image, const CValueString& entry) {
    note("AddToHistory(" + entry.String() + ')');
    forward(&AddToHistory,
            "_ZN4TEVU16COrunHeaderTools12AddToHistoryERNS_6IImageERKNS_12"
            "CValueStringE",
            image, entry);
}

} // namespace TEVU
