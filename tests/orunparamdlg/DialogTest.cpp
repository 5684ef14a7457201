#include "GeneratedDialogTest.h"

#include <Looks.h>
#include <PoreDialog.h>
#include <memory>
#include <qapplication.h>
#include <qcheckbox.h>
#include <qlabel.h>
#include <qlayout.h>
#include <qlineedit.h>
#include <qpushbutton.h>
#include <qt3/Application.h>
#include <qt3/ScrollView.h>
#include <qt3/SpinBox.h>
#include <qt3/Text.h>
#include <qt3/Widget.h>
#include <qt3/WidgetFunctions.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CPluginBase.h>

// The form as a whole, and what goes wrong.

using namespace maps;
using TEVU::CValueMap;

namespace {

const char c_plugin[] = "plugwdgt_orunparamdlg::autodlg";

class DialogTest : public GeneratedDialogTest {
protected:
    /// What the exception says that showing throws.
    std::string failure() {
        try {
            m_app.show();
        } catch (const TEVU::CException& thrown) {
            EXPECT_EQ(thrown.Place(), c_plugin);
            return thrown.Message();
        }
        ADD_FAILURE() << "nothing was thrown";
        return "";
    }

    static QWidget* button(QWidget* dialog, const char* name) {
        return support::child<QPushButton>(dialog, name);
    }

    static QLabel* label(QWidget* dialog, const char* text) {
        for (QObject* const object : support::descendants(dialog)) {
            auto* const label = dynamic_cast<QLabel*>(object);
            if (label && support::text(label->text()) == text)
                return label;
        }
        return nullptr;
    }

    /// One entry of each kind, "a" to "j".
    void describeEveryKind() {
        describe({entry("integer", "a", "a"), entry("number", "b", "b"),
                  entry("range", "c", "c", {{"min", whole(0)}, {"max", whole(9)}}),
                  entry("text", "d", "d"), entry("open file", "e", "e"),
                  entry("open files", "f", "f"),
                  entry("save file", "g", "g", {{"filter", text("*.csv")}}),
                  entry("choice", "h", "h", {{"choices", texts({"x", "y"})}}),
                  entry("switch", "i", "i"), entry("color", "j", "j")});
    }
};

} // namespace

TEST_F(DialogTest, HasItsTitleAndTheButtons) {
    m_app.m_description =
        taken(map({{"title", text("Find <pores>")}, {"entries", list({entry("text", "a", "")})}}));
    user.expectDialog({"autodlg", "Find <pores>"}).act([](QWidget* dialog) {
        EXPECT_EQ(support::text(support::child<QPushButton>(dialog, "defaults")->text()),
                  "Restore Defaults");
        EXPECT_EQ(support::text(support::child<QPushButton>(dialog, "ok")->text()), "OK");
        EXPECT_EQ(support::text(support::child<QPushButton>(dialog, "cancel")->text()), "Cancel");
        press(dialog, "cancel");
    });
    EXPECT_FALSE(m_app.show());
}

TEST_F(DialogTest, IsCalledParametersIfItHasNoTitle) {
    describe(entry("text", "a", ""));
    user.expectDialog({"autodlg", "Parameters"}).act([](QWidget* dialog) {
        press(dialog, "cancel");
    });
    EXPECT_FALSE(m_app.show());
}

TEST_F(DialogTest, BelongsToTheMainWidget) {
    qt3::Widget window;
    qt3::setMainWidget(&window);
    describe(entry("text", "a", ""));
    user.expectDialog({}).under(&window).act([](QWidget* dialog) { press(dialog, "ok"); });
    EXPECT_TRUE(m_app.show());
    qt3::setMainWidget(nullptr);
}

TEST_F(DialogTest, ShowsTheEntriesInTheirOrder) {
    describe({entry("text", "z", "Third"), entry("switch", "y", "Fourth"),
              group("Group",
                    {entry("integer", "x", "Sixth"), group("Inner", {entry("text", "w", "Eighth")}),
                     entry("color", "v", "Ninth")}),
              entry("text", "a", "Tenth")});
    okAfter([](QWidget* dialog) {
        EXPECT_EQ(shownTexts(dialog), (Lines{"Third", "Fourth", "[Group]", "Sixth", "[Inner]",
                                             "Eighth", "Ninth", "Tenth"}));
    });
}

TEST_F(DialogTest, WithoutEntriesThereAreOnlyTheButtons) {
    describe(std::vector<CValue*>());
    give({{"a", whole(1)}});
    EXPECT_EQ(okAfter([](QWidget* dialog) { EXPECT_EQ(shownTexts(dialog), Lines()); }), "{a: 1}");
}

TEST_F(DialogTest, FieldsOfAllGroupsBeginAtOneLine) {
    describe({group("", {entry("text", "a", "Short:")}),
              group("", {entry("text", "b", "A much longer label:")})});
    okAfter([](QWidget* dialog) {
        EXPECT_EQ(field(dialog, "a")->mapToGlobal(QPoint(0, 0)).x(),
                  field(dialog, "b")->mapToGlobal(QPoint(0, 0)).x());
    });
}

TEST_F(DialogTest, LabelsLeadToTheirFields) {
    describeEveryKind();
    okAfter([](QWidget* dialog) {
        for (const char* path : {"a", "b", "d", "h", "j"})
            EXPECT_EQ(label(dialog, path)->buddy(), field(dialog, path)) << path;
        for (const char* path : {"e", "f", "g"})
            EXPECT_EQ(label(dialog, path)->buddy(), part<QLineEdit>(dialog, path)) << path;
        EXPECT_EQ(label(dialog, "c")->buddy(), support::child<QWidget>(dialog, "spinbox1 "));
        EXPECT_EQ(label(dialog, "i"), nullptr);
    });
}

TEST_F(DialogTest, HelpIsTheToolTipOfLabelAndField) {
    describe({entry("open file", "a", "a", {{"help", text("Why <a> & \xb5")}}),
              entry("text", "b", "b"),
              group("c", {entry("text", "d", "d")}, {{"help", text("Group")}})});
    okAfter([](QWidget* dialog) {
        const char tip[] = "<qt>Why &lt;a> &amp; \xc2\xb5</qt>";
        EXPECT_EQ(support::toolTip(label(dialog, "a")), tip);
        EXPECT_EQ(support::toolTip(part<QLineEdit>(dialog, "a")), tip);
        EXPECT_EQ(support::toolTip(part<QPushButton>(dialog, "a")), tip);
        EXPECT_EQ(support::toolTip(label(dialog, "b")), "");
        EXPECT_EQ(support::toolTip(field(dialog, "b")), "");
        EXPECT_EQ(support::toolTip(field(dialog, "d")), "<qt>Group</qt>");
    });
}

TEST_F(DialogTest, FirstFieldHasTheFocus) {
    describe({group("", {entry("open file", "a", "")}), entry("text", "b", "")});
    okAfter(
        [](QWidget* dialog) { EXPECT_EQ(dialog->focusWidget(), part<QLineEdit>(dialog, "a")); });
}

TEST_F(DialogTest, TabGoesFromTopToBottom) {
    describeEveryKind();
    okAfter([](QWidget* dialog) {
        EXPECT_EQ(tabOrder(dialog, field(dialog, "a")),
                  (Lines{"a", "b", "c", "c", "d", "e", "e", "f", "f", "g", "g", "h", "i", "j",
                         "defaults", "ok", "cancel"}));
    });
}

TEST_F(DialogTest, TabGoesThroughGroupsInTheirPlace) {
    describe({entry("text", "a", ""), group("", {entry("text", "b", ""), entry("text", "c", "")}),
              entry("text", "d", "")});
    okAfter([](QWidget* dialog) {
        EXPECT_EQ(tabOrder(dialog, field(dialog, "a")),
                  (Lines{"a", "b", "c", "d", "defaults", "ok", "cancel"}));
    });
}

TEST_F(DialogTest, ReturnInAnyFieldIsOk) {
    describeEveryKind();
    for (const char* path : {"a", "b", "d", "h", "i"})
        EXPECT_TRUE(show([=](QWidget* dialog) {
            support::giveFocus(field(dialog, path));
            support::typeText(field(dialog, path), "\n");
        })) << path;
    for (const char* path : {"e", "f", "g"})
        EXPECT_TRUE(show([=](QWidget* dialog) {
            support::giveFocus(part<QLineEdit>(dialog, path));
            support::typeText(part<QLineEdit>(dialog, path), "\n");
        })) << path;
    EXPECT_TRUE(show([](QWidget* dialog) {
        auto* const spinBox = part<qt3::SpinBox>(dialog, "c");
        support::giveFocus(spinBox);
        support::typeText(spinBox, "\n");
    }));
}

TEST_F(DialogTest, ReturnTakesWhatIsBeingTyped) {
    describe({entry("integer", "a", ""), entry("number", "b", "")});
    EXPECT_TRUE(show([](QWidget* dialog) {
        typeOver(field(dialog, "a"), "12");
        typeOver(field(dialog, "b"), "2.5\n");
    }));
    EXPECT_EQ(parameters(), "{a: 12, b: 2.5000000000000000}");
    EXPECT_TRUE(show([](QWidget* dialog) { typeOver(field(dialog, "a"), "13\n"); }));
    EXPECT_EQ(parameters(), "{a: 13, b: 2.5000000000000000}");
}

TEST_F(DialogTest, EscapeInAnyFieldIsCancel) {
    describeEveryKind();
    for (const char* path : {"a", "b", "d", "h", "i", "j"})
        EXPECT_FALSE(show([=](QWidget* dialog) {
            support::giveFocus(field(dialog, path));
            support::keyClick(field(dialog, path), Qt::Key_Escape);
        })) << path;
    EXPECT_FALSE(show([](QWidget* dialog) { support::keyClick(dialog, Qt::Key_Escape); }));
}

TEST_F(DialogTest, CancelLeavesEverything) {
    describeEveryKind();
    give({{"a", whole(1)}, {"other", text("x")}});
    const auto edit = [](QWidget* dialog) {
        typeOver(field(dialog, "a"), "5");
        typeOver(field(dialog, "d"), "typed");
        support::mouseClick(field(dialog, "i"), QPoint(5, 10));
        press(dialog, "defaults");
        typeOver(field(dialog, "a"), "7");
    };
    EXPECT_EQ(cancelAfter(edit), "{a: 1, other: \"x\"}");
    EXPECT_FALSE(show([&](QWidget* dialog) {
        edit(dialog);
        support::keyClick(dialog, Qt::Key_Escape);
    }));
    EXPECT_FALSE(show([&](QWidget* dialog) {
        edit(dialog);
        dialog->close();
    }));
    EXPECT_EQ(parameters(), "{a: 1, other: \"x\"}");
}

TEST_F(DialogTest, OkWithoutAnEditAddsTheDefaultsOnly) {
    describeEveryKind();
    give({{"a", whole(1)}, {"other", text("x")}});
    EXPECT_EQ(okAfter(),
              "{a: 1, b: 0.0000000000000000, c: {lower: 0, upper: 9}, d: \"\", e: \"\", f: [], "
              "g: \"\", h: \"x\", i: false, j: \"#ffffff\", other: \"x\"}");
}

TEST_F(DialogTest, DefaultsAreRestored) {
    describe(
        {entry("integer", "a", "", {{"default", whole(3)}}),
         entry("number", "b", "", {{"default", number(0.123456789)}}),
         entry("range", "c", "", {{"min", whole(0)}, {"max", whole(9)}, {"default", range(2, 3)}}),
         entry("text", "d", "", {{"default", text("default")}}),
         entry("choice", "h", "", {{"choices", texts({"x", "y"})}, {"default", text("y")}}),
         entry("switch", "i", "", {{"default", flag(true)}}),
         entry("color", "j", "", {{"default", text("#ABCDEF")}}),
         group("", {entry("integer", "a", "", {{"default", whole(4)}})}, {{"key", text("g")}})});
    const std::string defaults =
        "{a: 3, b: 0.12345678900000000, c: {lower: 2, upper: 3}, d: \"default\", g: {a: 4}, "
        "h: \"y\", i: true, j: \"#ABCDEF\"}";
    EXPECT_EQ(okAfter(), defaults);
    give({{"a", whole(9)},
          {"b", number(9)},
          {"c", range(8, 9)},
          {"d", text("other")},
          {"g", map({{"a", whole(9)}})},
          {"h", text("x")},
          {"i", flag(false)},
          {"j", text("#000000")}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  typeOver(field(dialog, "a"), "7");
                  press(dialog, "defaults");
                  EXPECT_TRUE(dialog->isVisible());
              }),
              defaults);
}

TEST_F(DialogTest, DefaultsCanBeEditedAgain) {
    describe(entry("integer", "a", "", {{"default", whole(3)}}));
    give({{"a", whole(9)}});
    EXPECT_EQ(okAfter([](QWidget* dialog) {
                  press(dialog, "defaults");
                  typeOver(field(dialog, "a"), "8");
              }),
              "{a: 8}");
}

TEST_F(DialogTest, FormThatIsTooLongForTheScreenScrolls) {
    std::vector<CValue*> entries;
    for (int i = 0; i < 120; ++i)
        entries.push_back(entry("text", ("t" + std::to_string(i)).c_str(), "Text:"));
    describe(entries);
    okAfter([](QWidget* dialog) {
        EXPECT_LE(dialog->height(), qt3::availableGeometry(dialog).height());
        auto* const view = support::child<qt3::ScrollView>(dialog, "view");
        auto* const form = support::child<QWidget>(dialog, "form");
        EXPECT_GT(form->height(), view->viewport()->height());
        EXPECT_LE(form->width(), view->viewport()->width()); // only one scroll bar
        EXPECT_TRUE(button(dialog, "ok")->isVisible());
        // The way back from the first field leads to the last one, which is then to be seen.
        auto* const last = field(dialog, "t119");
        support::giveFocus(field(dialog, "t118"));
        support::keyClick(field(dialog, "t118"), Qt::Key_Tab, support::Modifier::None, "\t");
        EXPECT_TRUE(last->hasFocus());
        const QPoint middle = last->mapToGlobal(last->rect().center());
        EXPECT_TRUE(view->viewport()->rect().contains(view->viewport()->mapFromGlobal(middle)));
    });
}

TEST_F(DialogTest, FormThatFitsShowsInFull) {
    describeEveryKind();
    okAfter([](QWidget* dialog) {
        auto* const view = support::child<qt3::ScrollView>(dialog, "view");
        auto* const form = support::child<QWidget>(dialog, "form");
        EXPECT_EQ(form->size(), view->viewport()->size());
        EXPECT_EQ(view->viewport()->size(), view->size());
    });
}

TEST_F(DialogTest, LiesOnTheScreenWhereverItsParentIs) {
    qt3::Widget window;
    const QRect screen = qt3::availableGeometry(&window);
    window.setGeometry(screen.right() - 100, screen.bottom() - 100, 200, 200);
    support::show(&window);
    qt3::setMainWidget(&window);
    describe({group("", {entry("text", "a", "A long label:"), entry("color", "b", "")}),
              group("", {entry("text", "c", ""), entry("text", "d", ""), entry("text", "e", "")})});
    okAfter([&](QWidget* dialog) {
        EXPECT_TRUE(screen.contains(dialog->frameGeometry()));
        EXPECT_EQ(dialog->size(), dialog->layout()->sizeHint());
    });
    qt3::setMainWidget(nullptr);
}

// What the example shows

TEST_F(DialogTest, ExampleIsEditedAndKept) {
    PoreDialog pores;
    user.expectDialog({"autodlg", "Find pores"}).act([](QWidget* dialog) {
        typeOver(field(dialog, "filter/radius"), "0.75");
        typeOver(field(dialog, "comment"), "first");
        press(dialog, "ok");
    });
    EXPECT_TRUE(pores.show());
    const std::string kept =
        "{color: \"#ff8000\", comment: \"first\", filter: {method: \"median\", "
        "radius: 0.75000000000000000}, grey values: {lower: 10, upper: 90}, mask: \"\", "
        "references: [], show: true, smallest: 8, table: \"\", threads: 4}";
    EXPECT_EQ(written(pores.m_parameters), kept);
    user.expectDialog({"autodlg", "Find pores"}).act([](QWidget* dialog) {
        EXPECT_EQ(numberShown(dialog, "filter/radius"), "0.75 mm");
        press(dialog, "ok");
    });
    EXPECT_TRUE(pores.show());
    EXPECT_EQ(written(pores.m_parameters), kept);
}

// Advanced entries

namespace {

/// The plug-in without the wrapper: with any "config user".
class AdvancedTest : public DialogTest {
protected:
    AdvancedTest() {
        describe(
            {entry("integer", "a", "Plain", {{"default", whole(1)}}),
             entry("integer", "b", "Advanced", {{"default", whole(2)}, {"advanced", flag(true)}}),
             group("Mixed",
                   {entry("integer", "c", "Plain in mixed"),
                    entry("integer", "d", "Advanced in mixed", {{"advanced", flag(true)}})}),
             group("All advanced", {entry("integer", "e", "In all advanced")},
                   {{"advanced", flag(true)}}),
             group("Of advanced ones", {group("Inner", {entry("open file", "f", "Inmost",
                                                              {{"advanced", flag(true)}})})})});
    }

    CValueMap run(CValueMap setup, const User& acts) {
        const std::unique_ptr<TEVU::CPluginBase> plugin(TEVU::GetNewPluginInstance(c_plugin));
        CValueMap init;
        init.SetEntry("dialog", m_app.m_description.Clone());
        plugin->Init(nullptr, init);
        plugin->Setup(setup);
        user.expectDialog({"autodlg"}).act(acts);
        plugin->Execute(setup);
        return setup;
    }

    const Lines c_plain{"Plain", "[Mixed]", "Plain in mixed"};
    const Lines c_all{"Plain",           "Advanced",           "[Mixed]",
                      "Plain in mixed",  "Advanced in mixed",  "[All advanced]",
                      "In all advanced", "[Of advanced ones]", "[Inner]",
                      "Inmost"};
};

} // namespace

TEST_F(AdvancedTest, EntriesShowInTheWrapper) {
    okAfter([&](QWidget* dialog) { EXPECT_EQ(shownTexts(dialog), c_all); });
}

TEST_F(AdvancedTest, EntriesShowToAUserWhoMayConfigure) {
    run(taken(map({{"config user", flag(true)}})), [&](QWidget* dialog) {
        EXPECT_EQ(shownTexts(dialog), c_all);
        press(dialog, "ok");
    });
}

TEST_F(AdvancedTest, EntriesAndTheirGroupsAreHiddenFromOthers) {
    for (CValue* const configUser :
         std::vector<CValue*>{nullptr, flag(false), whole(1), text("true"), nullPointer()})
        run(taken(map({{"config user", configUser}})), [&](QWidget* dialog) {
            EXPECT_EQ(shownTexts(dialog), c_plain);
            press(dialog, "ok");
        });
}

TEST_F(AdvancedTest, HiddenParametersKeepTheirValuesOrHaveTheirDefaults) {
    CValueMap setup = taken(map(
        {{"parameters", map({{"a", whole(5)}, {"b", whole(6)}, {"f", text("/missing.tif")}})}}));
    setup = run(setup, [](QWidget* dialog) {
        press(dialog, "defaults");
        press(dialog, "ok");
    });
    EXPECT_EQ(written(setup), "{cancelled: false, parameters: {a: 1, b: 6, c: 0, d: 0, e: 0, "
                              "f: \"/missing.tif\"}}");
}

TEST_F(AdvancedTest, HiddenParametersAreChecked) {
    EXPECT_THROW(run(taken(map({{"parameters", map({{"e", text("x")}})}})), {}), TEVU::CException);
}

TEST_F(AdvancedTest, CancelLeavesParametersAndSaysSo) {
    const CValueMap setup =
        run(taken(map({{"parameters", map({{"a", whole(5)}})}})), [](QWidget* dialog) {
            typeOver(field(dialog, "a"), "7");
            press(dialog, "cancel");
        });
    EXPECT_EQ(written(setup), "{cancelled: true, parameters: {a: 5}}");
}

TEST_F(AdvancedTest, WithoutParametersAllHaveTheirDefaults) {
    const CValueMap setup = run(CValueMap(), [](QWidget* dialog) { press(dialog, "ok"); });
    EXPECT_EQ(written(setup), "{cancelled: false, parameters: {a: 1, b: 2, c: 0, d: 0, e: 0, "
                              "f: \"\"}}");
}

TEST_F(AdvancedTest, CancelWithoutParametersLeavesNone) {
    const CValueMap setup = run(CValueMap(), [](QWidget* dialog) { press(dialog, "cancel"); });
    EXPECT_EQ(written(setup), "{cancelled: true}");
}
