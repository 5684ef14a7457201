#include "Specimens.h"

#include <gtest/gtest.h>
#include <qmimedata.h>
#include <qt3/Text.h>

using specimen::Lines;

namespace {

/// Takes what the toolkit hands over when a button of the mouse pastes.
class CTakingEdit : public specimen::CPastingEdit {
public:
    using specimen::CPastingEdit::insertFromMimeData;
};

} // namespace

// A display hands over such data when no window has the selection.
TEST(EmptyPasteTest, DataWithoutAnyFormatReachesTheOverrideAndAddsNothing) {
    CTakingEdit edit;
    edit.setText("old");
    const QMimeData nothing;

    edit.insertFromMimeData(&nothing);

    EXPECT_EQ(edit.m_vCalls, (Lines{"paste"}));
    EXPECT_EQ(qt3::ascii(edit.text()), "old");
}
