#include "Subjects.h"

#include "../CopyingSubject.h"
#include "../User.h"

#include <CColorPushButton.h>

namespace differential {

namespace {

class OpenButton : public TEVU::CColorPushButton {
public:
    using CColorPushButton::CColorPushButton;

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};
};

class ColorPushButtonSubject : public CopyingSubject<OpenButton> {
public:
    ColorPushButtonSubject(Stage& stage, const Taste& taste) : CopyingSubject(stage, taste) {
        const Source channel = m_taste.integer(0, 255);
        beginning({channel, channel, channel});
        addWidgetActions();
        addRubbishActions();
        addGestureActions();
        addKeyActions({" ", " ", "Return", "Enter", "Escape", "Tab", "Backtab", "a"});
        onOne("setColor", 6, {channel, channel, channel}, [](OpenButton& b, const Operation& o) {
            b.setColor(QColor(o.integer(0), o.integer(1), o.integer(2)));
        });
        onOne("setGrey", 3, {m_taste.integer(127, 132)}, [](OpenButton& b, const Operation& o) {
            b.setColor(QColor(o.integer(0), o.integer(0), o.integer(0)));
        });
        onOne("setNoColor", 1, {}, [](OpenButton& b, const Operation&) { b.setColor(QColor()); });
        action("answer", 3, {Taste::amongTexts({"", "#000000", "#ffffff", "#0000ff", "#81827f"})},
               [this](const Operation& operation) { m_pUser->answer(operation.text(0)); });
        addCopyActions();
    }

protected:
    void make(const Operation& beginning) override;
    void unmake() override {
        CopyingSubject::unmake();
        m_pUser.reset();
    }
    std::string state() override;
    std::string brokenPromise() override;

private:
    std::unique_ptr<User> m_pUser;
};

void ColorPushButtonSubject::make(const Operation& beginning) {
    m_pUser = std::make_unique<User>([this](const std::string& line) { tell(line); });
    auto* const button =
        new OpenButton(QColor(beginning.integer(0), beginning.integer(1), beginning.integer(2)),
                       m_stage.place(), "button");
    m_pUser->setParent(button);
    button->setGeometry(10, 10, 100, 24);
    adopt(button, "button");
    target(button, "button");
    m_stage.recorder().tap(button, "clicked()", "button");
    button->show();
    m_stage.addNeighbourBehind();
}

std::string stateOf(const OpenButton& constButton) {
    auto& button = const_cast<OpenButton&>(constButton); // color() is not const
    return (button.color().isValid() ? shown(button.color().name()) : "no color") + ' ' +
           shown(button.text()) + " on " + shown(button.paletteBackgroundColor().name()) + " in " +
           shown(button.paletteForegroundColor().name()) + (button.isDown() ? ", down" : "");
}

std::string ColorPushButtonSubject::state() {
    return widgetState() + statesOfAll(stateOf);
}

std::string ColorPushButtonSubject::brokenPromise() {
    for (const auto& each : m_vAll) {
        if (!each)
            continue;
        const QColor color = each->color();
        const bool dark = std::max({color.red(), color.green(), color.blue()}) < 130;
        if (each->text() != color.name())
            return "the text is not the colour's name";
        if (each->paletteForegroundColor() != QColor(dark ? Qt::white : Qt::black))
            return "the text is in the wrong colour";
    }
    return "";
}

} // namespace

std::unique_ptr<Subject> colorPushButton(Stage& stage, const Taste& taste) {
    return std::make_unique<ColorPushButtonSubject>(stage, taste);
}

} // namespace differential
