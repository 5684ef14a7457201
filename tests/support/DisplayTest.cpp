#include "Display.h"

#include "Events.h"

#include <gtest/gtest.h>
#include <qmessagebox.h>

namespace {

QImage pictureOfBox() {
    QMessageBox box(nullptr);
    box.setIcon(QMessageBox::Warning);
    box.setText("A text.");
    box.resize(box.sizeHint());
    return support::grab(&box);
}

TEST(DisplayTest, IconsThatAreDecodedOnceLookAsBefore) {
    const QImage before = pictureOfBox();

    support::decodeIconsOnce();

    EXPECT_TRUE(pictureOfBox() == before);
    EXPECT_TRUE(pictureOfBox() == before);
}

} // namespace
