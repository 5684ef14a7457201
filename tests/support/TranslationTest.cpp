#include "Translation.h"

#include "Events.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qevent.h>
#include <qwidget.h>

namespace {

std::string translated(const char* className, const char* sourceText) {
    return support::text(qApp->translate(className, sourceText));
}

/// Counts how often it is told of a new language.
class Listener : public QWidget {
public:
    int m_nChanges = 0;

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::LanguageChange)
            ++m_nChanges;
        return QWidget::event(event);
    }
};

} // namespace

TEST(Translation, TranslatesTheTextsOfItsClassAsLongAsItLives) {
    {
        const support::Translation german("Form", {{"Creator:", "Urheber:"}});

        EXPECT_EQ(translated("Form", "Creator:"), "Urheber:");
        EXPECT_EQ(translated("Form", "History:"), "History:");
        EXPECT_EQ(translated("OtherForm", "Creator:"), "Creator:");
    }
    EXPECT_EQ(translated("Form", "Creator:"), "Creator:");
}

TEST(Translation, TellsTheWidgetsWhenItComesAndWhenItGoes) {
    Listener listener;
    {
        const support::Translation german("Form", {{"Creator:", "Urheber:"}});
        EXPECT_EQ(listener.m_nChanges, 1);
    }
    EXPECT_EQ(listener.m_nChanges, 2);
}
