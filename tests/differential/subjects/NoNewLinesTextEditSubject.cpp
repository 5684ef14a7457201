#include "Subjects.h"

#include "../CopyingSubject.h"

#include <CNoNewLinesTextEdit.h>
#include <Looks.h>

namespace differential {

namespace {

/// Tells when it pastes, on whatever way.
class TalkingEdit : public TEVU::CNoNewLinesTextEdit {
public:
    using CNoNewLinesTextEdit::CNoNewLinesTextEdit;

    void paste() override {
        m_tell("paste");
        CNoNewLinesTextEdit::paste();
        const QString left = text();
        if (left.contains(QChar('\r')) || left.contains(QChar('\n')))
            m_tell(std::string(Subject::c_broken) + "a line break is left");
    }

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};
};

QString utf8(const std::string& text) {
    return QString::fromUtf8(text.c_str());
}

class NoNewLinesTextEditSubject : public CopyingSubject<TalkingEdit> {
public:
    NoNewLinesTextEditSubject(Stage& stage, const Taste& taste) : CopyingSubject(stage, taste) {
        beginning({});
        addWidgetActions();
        addRubbishActions();
        addKeyActions({"a", "b", "c", " ", "1", "\xe9", "<", "Return", "Return", "Enter", "Left",
                       "Left", "Right", "Home", "End", "Backspace", "Delete", "Escape", "F1"});
        addOwnActions();
        addCopyActions();
    }

protected:
    void make(const Operation& beginning) override;
    std::string state() override;
    bool takesKey(const std::string& name) override;
    /// With a key that moves the cursor, nothing may get selected, and stay so.
    bool takesShift(const std::string& name) override { return name.size() == 1; }
    QSize greatestSize() override { return QSize(380, 200); }

private:
    void addOwnActions();
    /// Text put into a hidden text edit lets that of Qt 3.3 crash when it is shown. Copies stay hidden.
    bool isSafe(const TalkingEdit& edit) const { return &edit != first() || edit.isVisible(); }
};

void NoNewLinesTextEditSubject::make(const Operation&) {
    support::setClipboard("");
    auto* const edit = new TalkingEdit(m_stage.place(), "edit");
    support::keepLinesWhole(edit);
    edit->setGeometry(10, 10, 300, 100);
    adopt(edit, "edit");
    target(edit, "edit");
    edit->show();
    m_stage.addNeighbourBehind();
}

// Where a selection is left for, is the host's choice.
bool NoNewLinesTextEditSubject::takesKey(const std::string& name) {
    const auto* const edit = dynamic_cast<TalkingEdit*>(m_stage.focusWidget());
    return !edit || (name != "Left" && name != "Right") || support::selectionOf(edit).empty();
}

void NoNewLinesTextEditSubject::addOwnActions() {
    using Edit = TalkingEdit;
    const Source lines = Taste::amongTexts({"a\nb", "x\r\ny", "\n", "one\n\ntwo\n", "plain",
                                            "\xc3\xa9\nz", "<b>a</b>\n<i>", "a\n ", "", " "});
    const Source any = m_taste.text();
    const Source returns = Taste::amongTexts({"\r", "a\rb", "\r\r\n", "\n\r", "a\r", "\rb"});
    for (const auto& [name, source] :
         {std::pair{"clipboardLines", lines}, {"clipboardReturns", returns}, {"clipboard", any}})
        action(name, 3, {source},
               [](const Operation& operation) { support::setClipboard(utf8(operation.text(0))); });
    onOne("paste", 5, {}, [this](Edit& e, const Operation&) {
        if (isSafe(e))
            e.paste();
    });
    action("pasteKey", 5, {}, [this](const Operation&) {
        if (m_stage.focus() == "edit")
            support::keyClick(first(), Qt::Key_V, support::Modifier::Control, "\x16");
    });
    const auto set = [](Edit& e, const Operation& o) {
        QString text = utf8(o.text(0));
        e.setText(text.remove(QChar('\r')));
    };
    onOne("setText", 2, {any}, set);
    onOne("setLines", 2, {lines}, set);
    // At once: where the cursor stands in what is all selected is the host's.
    onOne("replaceAll", 4, {Taste::index(0, 3)}, [this](Edit& e, const Operation& o) {
        if (e.text().isEmpty() || !e.isEnabled() || e.isReadOnly() || !isSafe(e))
            return;
        e.selectAll();
        switch (o.integer(0)) {
        case 0:
            return e.cut();
        case 1:
            return support::sendKey(&e, Qt::Key_Delete, support::Modifier::None, "\x7f");
        case 2:
            return support::sendKey(&e, Qt::Key_B, support::Modifier::None, "b");
        default:
            return e.paste();
        }
    });
    onOne("copyText", 1, {}, [](Edit& e, const Operation&) {
        if (!support::selectionOf(&e).empty())
            e.copy();
    });
    onOne("clear", 1, {}, [](Edit& e, const Operation&) { e.clear(); });
    onOne("setReadOnly", 1, {Taste::flag(20)},
          [](Edit& e, const Operation& o) { e.setReadOnly(o.flag(0)); });
}

std::string stateOf(const TalkingEdit& edit) {
    return shown(edit.text()) + '@' + shown(support::cursorOf(&edit)) + " selected " +
           quoted(support::selectionOf(&edit)) + (edit.isReadOnly() ? ", read-only" : "");
}

std::string NoNewLinesTextEditSubject::state() {
    return widgetState() + statesOfAll(stateOf);
}

} // namespace

std::unique_ptr<Subject> noNewLinesTextEdit(Stage& stage, const Taste& taste) {
    return std::make_unique<NoNewLinesTextEditSubject>(stage, taste);
}

} // namespace differential
