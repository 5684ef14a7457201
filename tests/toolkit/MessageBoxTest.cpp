#include <qt3/MessageBox.h>

#include "Events.h"
#include "ModalDriver.h"

#include <gtest/gtest.h>
#include <memory>
#include <qapplication.h>
#include <qlabel.h>
#include <qwidget.h>
#include <vector>

using qt3::MessageBox;
using support::ModalDriver;

namespace {

typedef int (*Ask)(QWidget*, const QString&, const QString&, int, int, int);

struct Kind {
    const char* name;
    Ask ask;
};

const Kind c_kinds[] = {{"information", MessageBox::information},
                        {"warning", MessageBox::warning},
                        {"critical", MessageBox::critical}};

struct Answer {
    const char* label;
    int code;
};

const Answer c_answers[] = {
    {"OK", MessageBox::Ok},         {"Cancel", MessageBox::Cancel}, {"Yes", MessageBox::Yes},
    {"No", MessageBox::No},         {"Abort", MessageBox::Abort},   {"Retry", MessageBox::Retry},
    {"Ignore", MessageBox::Ignore},
};

int ask(int button0, int button1 = 0, int button2 = 0) {
    return MessageBox::warning(nullptr, "Caption", "Text", button0, button1, button2);
}

std::vector<QLabel*> labelsWith(const QString& text) {
    std::vector<QLabel*> labels;
    for (QObject* object : support::descendants(QApplication::activeModalWidget())) {
        QLabel* label = dynamic_cast<QLabel*>(object);
        if (label && label->text() == text)
            labels.push_back(label);
    }
    return labels;
}

} // namespace

class MessageBoxKinds : public testing::TestWithParam<Kind> {};

TEST_P(MessageBoxKinds, AnswerNothingWhenTheirParentIsDestroyed) {
    auto window = std::make_unique<QWidget>(nullptr);
    auto* page = new QWidget(window.get());
    ModalDriver driver;
    driver.expectMessage({}).under(page).before([&] { window.reset(); });

    EXPECT_EQ(GetParam().ask(page, "Caption", "Text", MessageBox::Yes,
                             MessageBox::Cancel | MessageBox::Escape, 0),
              MessageBox::NoButton);

    EXPECT_FALSE(window);
}

TEST_P(MessageBoxKinds, ShowTheirIconCaptionTextAndButtonsInTheOrderGiven) {
    QWidget window(nullptr);
    ModalDriver driver;
    driver.expectMessage({}).under(&window).answer("No");

    const int answer = GetParam().ask(&window, "Caption", "First line\nsecond", MessageBox::Cancel,
                                      MessageBox::No, MessageBox::Yes);

    EXPECT_EQ(answer, MessageBox::No);
    EXPECT_EQ(driver.log(),
              std::vector<std::string>{std::string(GetParam().name) +
                                       " 'Caption' 'First line\\nsecond' [Cancel, No, Yes] -> No"});
}

TEST_P(MessageBoxKinds, NeedNoParent) {
    ModalDriver driver;
    driver.expectMessage({}).under(nullptr).answer("OK");

    EXPECT_EQ(GetParam().ask(nullptr, "Caption", "Text", MessageBox::Ok, 0, 0), MessageBox::Ok);
}

INSTANTIATE_TEST_SUITE_P(All, MessageBoxKinds, testing::ValuesIn(c_kinds),
                         [](const auto& row) { return std::string(row.param.name); });

class MessageBoxAnswers : public testing::TestWithParam<Answer> {};

TEST_P(MessageBoxAnswers, AreTheEnumeratorsWhateverTheFlags) {
    const int code = GetParam().code;
    ModalDriver driver;
    driver.expectMessage({{}, {}, {GetParam().label}}).answer(GetParam().label);
    driver.expectMessage({{}, {}, {GetParam().label}}).answer(GetParam().label);

    EXPECT_EQ(ask(code), code);
    EXPECT_EQ(ask(code | MessageBox::Default | MessageBox::Escape), code);
}

INSTANTIATE_TEST_SUITE_P(All, MessageBoxAnswers, testing::ValuesIn(c_answers),
                         [](const auto& row) { return std::string(row.param.label); });

struct Buttons {
    const char* name;
    int buttons[3];
    const char* defaultButton;
    const char* escapeButton;
    int enter;  ///< What Return answers.
    int escape; ///< What Escape and closing answer.
};

void PrintTo(const Buttons& row, std::ostream* stream) {
    *stream << row.name;
}

class MessageBoxKeys : public testing::TestWithParam<Buttons> {
protected:
    support::Message expected() const {
        return {{}, {}, {}, GetParam().defaultButton, GetParam().escapeButton};
    }

    int askForAnswer() const {
        const int(&buttons)[3] = GetParam().buttons;
        return ask(buttons[0], buttons[1], buttons[2]);
    }
};

TEST_P(MessageBoxKeys, ReturnPressesTheDefaultOrTheFirst) {
    ModalDriver driver;
    driver.expectMessage(expected()).enter();

    EXPECT_EQ(askForAnswer(), GetParam().enter);
}

TEST_P(MessageBoxKeys, EscapeAnswersWithItsButtonOrWithNone) {
    ModalDriver driver;
    driver.expectMessage(expected()).escape();

    EXPECT_EQ(askForAnswer(), GetParam().escape);
}

TEST_P(MessageBoxKeys, ClosingAnswersAsEscape) {
    ModalDriver driver;
    driver.expectMessage(expected()).close();

    EXPECT_EQ(askForAnswer(), GetParam().escape);
}

INSTANTIATE_TEST_SUITE_P(
    All, MessageBoxKeys,
    testing::Values(
        Buttons{"OkAlone", {MessageBox::Ok}, "OK", "", MessageBox::Ok, 0},
        Buttons{"OkAloneByDefault",
                {MessageBox::Ok | MessageBox::Default},
                "OK",
                "",
                MessageBox::Ok,
                0},
        Buttons{"OkAndCancelWithoutFlags",
                {MessageBox::Ok, MessageBox::Cancel},
                "OK",
                "",
                MessageBox::Ok,
                0},
        Buttons{"YesAndNoWithoutFlags",
                {MessageBox::Yes, MessageBox::No},
                "Yes",
                "",
                MessageBox::Yes,
                0},
        Buttons{"NoFirst", {MessageBox::No, MessageBox::Yes}, "No", "", MessageBox::No, 0},
        Buttons{"CancelAndRetry",
                {MessageBox::Cancel | MessageBox::Escape, MessageBox::Retry | MessageBox::Default},
                "Retry",
                "Cancel",
                MessageBox::Retry,
                MessageBox::Cancel},
        Buttons{"YesNoCancel",
                {MessageBox::Yes | MessageBox::Default, MessageBox::No,
                 MessageBox::Cancel | MessageBox::Escape},
                "Yes",
                "Cancel",
                MessageBox::Yes,
                MessageBox::Cancel},
        Buttons{"DefaultInTheMiddleEscapeElsewhereThanCancel",
                {MessageBox::Yes | MessageBox::Escape, MessageBox::No | MessageBox::Default,
                 MessageBox::Cancel},
                "No",
                "Yes",
                MessageBox::No,
                MessageBox::Yes},
        Buttons{"BothFlagsOnOne",
                {MessageBox::Yes, MessageBox::No | MessageBox::Default | MessageBox::Escape},
                "No",
                "No",
                MessageBox::No,
                MessageBox::No}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(MessageBox, HasAnOkWithoutAnyButton) {
    ModalDriver driver;
    driver.expectMessage({{}, {}, {"OK"}}).answer("OK");

    EXPECT_EQ(ask(0), MessageBox::Ok);
}

TEST(MessageBox, MarkupInTheTextStaysAsTyped) {
    const char* text = "<b>bold</b> & <i>so on</i> &amp; R&D";
    std::vector<Qt::TextFormat> formats;
    ModalDriver driver;
    driver.expectMessage({"Caption", text})
        .before([&] {
            for (QLabel* label : labelsWith(text))
                formats.push_back(label->textFormat());
        })
        .answer("OK");

    MessageBox::warning(nullptr, "Caption", text, MessageBox::Ok, 0);

    EXPECT_EQ(formats, std::vector<Qt::TextFormat>{Qt::PlainText});
}

TEST(MessageBox, OneMayOpenAboveAnother) {
    int above = -1;
    ModalDriver driver;
    driver.expectMessage({{}, "Text"})
        .before(
            [&] { above = MessageBox::information(nullptr, "Caption", "Above", MessageBox::Ok); })
        .answer("Yes");
    driver.expectMessage({{}, "Above"}).escape();

    EXPECT_EQ(ask(MessageBox::Yes, MessageBox::No), MessageBox::Yes);
    EXPECT_EQ(above, 0);
}
