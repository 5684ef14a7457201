#ifndef GENERATED_DIALOG_POREDIALOG_H
#define GENERATED_DIALOG_POREDIALOG_H

#include "Description.h"

#include <CAutoDialogPluginWrapper.h>

namespace description {

inline CValue* inputs() {
    const char* const images = "Images (*.tif *.tiff)";
    return group("Input",
                 {entry("open file", "mask", "&Mask:",
                        {{"filter", text(images)},
                         {"help", text("Pores are searched where the mask is white, "
                                       "without a mask everywhere.")}}),
                  entry("open files", "references", "&References:", {{"filter", text(images)}})});
}

/// Its parameters lie in a map of their own, because the group has a key.
inline CValue* noiseFilter() {
    return group("Noise filter",
                 {entry("choice", "method", "Me&thod:",
                        {{"choices", texts({"none", "median", "gauss"})},
                         {"labels", texts({"None", "Median", "Gaussian"})},
                         {"default", text("median")}}),
                  entry("number", "radius", "R&adius:",
                        {{"min", number(0.1)},
                         {"max", number(10)},
                         {"step", number(0.1)},
                         {"decimals", whole(2)},
                         {"unit", text("mm")},
                         {"default", number(0.5)}})},
                 {{"key", text("filter")}});
}

inline CValue* pores() {
    return group("Pores",
                 {entry("range", "grey values", "&Grey values:",
                        {{"min", whole(0)},
                         {"max", whole(255)},
                         {"default", map({{"lower", whole(10)}, {"upper", whole(90)}})}}),
                  entry("integer", "smallest", "&Smallest:",
                        {{"min", whole(1)}, {"unit", text("voxels")}, {"default", whole(8)}}),
                  entry("color", "color", "&Colour:", {{"default", text("#ff8000")}})});
}

inline CValue* results() {
    return group("Results",
                 {entry("save file", "table", "Ta&ble:", {{"filter", text("Tables (*.csv)")}}),
                  entry("text", "comment", "C&omment:"),
                  entry("switch", "show", "Sho&w the pores at once", {{"default", flag(true)}})});
}

/// What a search for pores needs to know: an entry of each kind.
inline CValue* poreSearch() {
    return map({{"title", text("Find pores")},
                {"entries", list({inputs(), noiseFilter(), pores(), results(),
                                  entry("integer", "threads", "T&hreads:",
                                        {{"min", whole(1)},
                                         {"max", whole(64)},
                                         {"default", whole(4)},
                                         {"advanced", flag(true)}})})}});
}

} // namespace description

/// Asks for it, and keeps it from one time to the next.
class PoreDialog : public TEVU::CAutoDialogPluginWrapper {
public:
    TEVU::CValueMap m_parameters; ///< At first empty: then each parameter has its default.

    TEVU::CValue* GetDialogValue() override { return description::poreSearch(); }
    TEVU::CValue* GetParameterValue() override { return m_parameters.Clone(); }

    bool SetParameterValue(TEVU::CValueMap& edited) override {
        m_parameters = edited;
        return true;
    }
};

#endif
