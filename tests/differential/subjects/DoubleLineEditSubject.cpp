#include "Subjects.h"

#include "../CopyingSubject.h"

#include <CDoubleLineEdit.h>
#include <iostream>
#include <sstream>

namespace differential {

namespace {

/// Opens what is protected.
class OpenEdit : public TEVU::CDoubleLineEdit {
public:
    using CDoubleLineEdit::CDoubleLineEdit;
    using CDoubleLineEdit::TextToValue;
    using CDoubleLineEdit::ValidateInput;
    using CDoubleLineEdit::ValueToText;

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};
};

class DoubleLineEditSubject : public CopyingSubject<OpenEdit> {
public:
    DoubleLineEditSubject(Stage& stage, const Taste& taste) : CopyingSubject(stage, taste) {
        beginning({Taste::flag(75), m_taste.real(), m_taste.integer(0, 12)});
        addWidgetActions();
        addRubbishActions();
        addWheelActions();
        std::vector<std::string> keys = commonKeys();
        for (const char* typed :
             {"1", "2", "5", "0", "9", "9", ".", "-", "+", "e", " ", "a", ",", "\xe9"})
            keys.emplace_back(typed);
        addKeyActions(keys);
        addOwnActions();
        addCopyActions();
    }

protected:
    void make(const Operation& beginning) override;
    void unmake() override {
        std::cout.rdbuf(m_pOutput);
        CopyingSubject::unmake();
    }
    std::string state() override;

private:
    void addOwnActions();

    std::streambuf* m_pOutput = nullptr; ///< Where standard output went before.
    std::ostringstream m_output;
};

void DoubleLineEditSubject::make(const Operation& beginning) {
    m_pOutput = std::cout.rdbuf(m_output.rdbuf());
    auto* const edit = beginning.flag(0) ? new OpenEdit(beginning.real(1), beginning.integer(2),
                                                        m_stage.place(), "edit")
                                         : new OpenEdit(m_stage.place(), "edit");
    edit->setGeometry(10, 10, 200, 24);
    adopt(edit, "edit");
    target(edit, "edit");
    m_stage.recorder().tap(edit, "textChanged(const QString&)", "edit");
    m_stage.recorder().tap(edit, "returnPressed()", "edit");
    edit->show();
    m_stage.addNeighbourBehind();
}

void DoubleLineEditSubject::addOwnActions() {
    onOne("Value", 4, {},
          [this](OpenEdit& e, const Operation&) { tell("value " + shown(e.Value())); });
    onOne("SetValue", 4, {m_taste.real()},
          [](OpenEdit& e, const Operation& o) { e.SetValue(o.real(0)); });
    onOne("SetToDouble", 1, {}, [](OpenEdit& e, const Operation&) { e.SetToDouble(); });
    onOne("SetText", 3, {Taste::flag(70)}, [this](OpenEdit& e, const Operation& o) {
        bool ok = true;
        e.SetText(o.flag(0) ? &ok : nullptr);
        tell("ok " + shown(ok));
    });
    onOne("ValidateInput", 3, {},
          [this](OpenEdit& e, const Operation&) { tell("valid " + shown(e.ValidateInput())); });
    onOne("TextToValue", 2, {}, [this](OpenEdit& e, const Operation&) {
        bool ok = true;
        const double number = e.TextToValue(&ok);
        tell("the text is " + shown(number) + ", " + shown(ok));
    });
    onOne("ValueToText", 2, {m_taste.real()}, [this](OpenEdit& e, const Operation& o) {
        tell("the text of it is " + shown(e.ValueToText(o.real(0))));
    });
    onOne("setText", 5, {m_taste.text()}, [](OpenEdit& e, const Operation& o) {
        if (!e.text().isEmpty() || !o.text(0).empty())
            e.setText(QString::fromUtf8(o.text(0).c_str()));
    });
    onOne("selectAll", 1, {}, [](OpenEdit& e, const Operation&) { e.selectAll(); });
    onOne("setReadOnly", 1, {Taste::flag(20)},
          [](OpenEdit& e, const Operation& o) { e.setReadOnly(o.flag(0)); });
}

std::string DoubleLineEditSubject::state() {
    const std::string output = m_output.str();
    m_output.str("");
    return widgetState() +
           statesOfAll([](const OpenEdit& edit) { return WidgetSubject::fieldState(&edit); }) +
           (output.empty() ? "" : "; printed " + quoted(output));
}

} // namespace

std::unique_ptr<Subject> doubleLineEdit(Stage& stage, const Taste& taste) {
    return std::make_unique<DoubleLineEditSubject>(stage, taste);
}

} // namespace differential
