#include "CDoubleLineEdit.h"

#include "Events.h"
#include "NumberModel.h"
#include "Output.h"
#include "Recorder.h"

#include <gtest/gtest.h>
#include <iterator>
#include <ostream>
#include <qapplication.h>
#include <qevent.h>
#include <qt3/SignalTap.h>
#include <sstream>

using model::same;
using support::Lines;

namespace {

// The rules of the field in the plainest form.
class Model {
public:
    Model() = default;
    Model(double number, int decimals)
        : value(number), precision(decimals), text(valueToText(number)) {}

    double value = 0.0;
    int precision = 2;
    std::string text;
    Lines log;

    void type(const std::string& newText) {
        if (text == newText)
            return;
        text = newText;
        say("textChanged(\"" + text + "\")");
    }

    void setValue(double number) {
        value = number;
        type(valueToText(number));
    }

    void setToDouble() { setValue(14.44); }

    void setText(bool before) {
        bool ok = before;
        reformat(&ok);
        say(ok ? "SetText: a number" : "SetText: none");
    }

    void setTextWithoutFlag() { reformat(nullptr); }

    void validateInput() {
        bool ok = true;
        reformat(&ok);
        say(ok ? "ValidateInput: a number" : "ValidateInput: none");
    }

    // Who listens to Return after the field has been made hears of it after the field.
    void pressReturn() {
        bool ok = true;
        reformat(&ok);
        say("returnPressed()");
    }

    void loseFocus() {}

    void askValue() {
        bool ok = true;
        reformat(&ok);
        const double number = ok ? textToValue(&ok) : value;
        std::ostringstream line;
        line << "Value: " << model::logged(number) << ", written: " << number << '\n';
        say(line.str());
    }

    double textToValue(bool* ok) const {
        double number = 0.0;
        *ok = model::read(text, &number);
        return *ok ? number : value;
    }

    std::string valueToText(double number) const { return model::show(number, "%.*f", precision); }

private:
    void say(const std::string& line) { log.push_back(line); }

    void reformat(bool* ok) {
        const std::string old = text;
        if (ok)
            value = textToValue(ok);
        type(valueToText(value));
        if (ok)
            say("textChanged(\"" + old + "\")");
    }
};

// An empty text is null: Qt 3 tells null from empty, and that is not the matter here.
QString toolkitText(const std::string& text) {
    return text.empty() ? QString() : QString::fromLatin1(text.c_str());
}

// The class itself, in the vocabulary of the model.
class Edit : public TEVU::CDoubleLineEdit {
public:
    using TEVU::CDoubleLineEdit::CDoubleLineEdit;

    Lines log;

    void listen() {
        listenTo("textChanged(const QString&)", "textChanged(");
        listenTo("returnPressed()", "returnPressed(");
    }

    void type(const std::string& newText) { QLineEdit::setText(toolkitText(newText)); }
    void setValue(double number) { SetValue(number); }
    void setToDouble() { SetToDouble(); }

    using QLineEdit::setText;
    void setText(bool before) {
        bool ok = before;
        SetText(&ok);
        log.push_back(ok ? "SetText: a number" : "SetText: none");
    }

    void setTextWithoutFlag() { SetText(nullptr); }

    void validateInput() {
        const bool ok = ValidateInput();
        log.push_back(ok ? "ValidateInput: a number" : "ValidateInput: none");
    }

    void pressReturn() { support::keyClick(this, Qt::Key_Return, support::Modifier::None, "\r"); }

    void loseFocus() {
        QFocusEvent event(QEvent::FocusOut);
        QApplication::sendEvent(this, &event);
    }

    void askValue() {
        const Output output;
        const double number = Value();
        log.push_back("Value: " + model::logged(number) + ", written: " + output.text());
    }

    double textToValue(bool* ok) const { return TextToValue(ok); }
    std::string valueToText(double number) const { return support::text(ValueToText(number)); }

private:
    void listenTo(const char* signal, const std::string& start) {
        ASSERT_TRUE(m_tap.listen(this, signal, [=](const std::string& arguments) {
            log.push_back(start + arguments + ')');
        }));
    }

    qt3::SignalTap m_tap;
};

enum class Action {
    type,
    setValue,
    setToDouble,
    setText,
    setTextWithoutFlag,
    validateInput,
    pressReturn,
    loseFocus,
    askValue,
    count
};

const char* const c_names[] = {"type",        "setValue",   "setToDouble",
                               "setText",     "setText(0)", "validateInput",
                               "pressReturn", "loseFocus",  "askValue"};
static_assert(std::size(c_names) == static_cast<std::size_t>(Action::count), "one name each");

struct Operation {
    Action action;
    double number;
    std::string text;
    bool flag;
};

std::ostream& operator<<(std::ostream& out, const Operation& operation) {
    return out << c_names[static_cast<int>(operation.action)] << " (number "
               << model::logged(operation.number) << ", text '" << operation.text << "', flag "
               << operation.flag << ')';
}

// For the field and for the model.
template <class Target>
void apply(Target& target, const Operation& operation) {
    switch (operation.action) {
    case Action::type:
        return target.type(operation.text);
    case Action::setValue:
        return target.setValue(operation.number);
    case Action::setToDouble:
        return target.setToDouble();
    case Action::setText:
        return target.setText(operation.flag);
    case Action::setTextWithoutFlag:
        return target.setTextWithoutFlag();
    case Action::validateInput:
        return target.validateInput();
    case Action::pressReturn:
        return target.pressReturn();
    case Action::loseFocus:
        return target.loseFocus();
    default:
        return target.askValue();
    }
}

// Typing comes often: what becomes of typed text is what the rules are about.
Operation anyOperation(std::mt19937& random) {
    const unsigned count = static_cast<unsigned>(Action::count);
    const unsigned choice = random() % (count + 6);
    return {choice < count ? static_cast<Action>(choice) : Action::type, model::anyNumber(random),
            model::anyNumberText(random) + (random() % 8 ? "" : " "), random() % 2 == 0};
}

void expectSameState(const Edit& edit, const Model& model, double number) {
    EXPECT_EQ(edit.log, model.log);
    EXPECT_EQ(support::text(edit.text()), model.text);
    EXPECT_EQ(edit.valueToText(number), model.valueToText(number));
    bool ok = false;
    bool modelOk = false;
    EXPECT_PRED2(same, edit.textToValue(&ok), model.textToValue(&modelOk));
    EXPECT_EQ(ok, modelOk);
}

void runBesideModel(Edit& edit, Model& model, unsigned seed) {
    std::mt19937 random(seed);
    edit.listen();
    for (int i = 0; i < 25000 && !testing::Test::HasFailure(); ++i) {
        const Operation operation = anyOperation(random);
        apply(edit, operation);
        apply(model, operation);
        expectSameState(edit, model, operation.number);
        if (testing::Test::HasFailure())
            ADD_FAILURE() << "seed " << seed << ", step " << i << ", " << operation;
        edit.log.clear();
        model.log.clear();
    }
}

} // namespace

TEST(CDoubleLineEditModel, AnySequenceOfOperationsGoesAsInTheModel) {
    Edit edit(2.5, 3, nullptr, "edit");
    Model model(2.5, 3);

    runBesideModel(edit, model, 4711);
}

TEST(CDoubleLineEditModel, AnySequenceGoesAsInTheModelFromAnEmptyField) {
    Edit edit;
    Model model;

    runBesideModel(edit, model, 815);
}

TEST(CDoubleLineEditModel, AnySequenceGoesAsInTheModelWithWholeNumbers) {
    Edit edit(-7.5, 0, nullptr, "edit");
    Model model(-7.5, 0);

    runBesideModel(edit, model, 1234);
}

TEST(CDoubleLineEditModel, AnySequenceGoesAsInTheModelWithMoreDecimalsThanANumberHas) {
    Edit edit(0.1, 20, nullptr, "edit");
    Model model(0.1, 20);

    runBesideModel(edit, model, 99);
}
