#include "Subjects.h"

#include "../CopyingSubject.h"
#include "../FileUser.h"

#include <CFileDialog.h>
#include <CFileLineWidget.h>
#include <qpushbutton.h>

namespace differential {

namespace {

/// Opens what is protected.
class OpenLine : public TEVU::CFileLineWidget {
public:
    using CFileLineWidget::CFileLineWidget;
    using CFileLineWidget::SlotOpenFileDialog;

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};
};

class FileLineWidgetSubject : public CopyingSubject<OpenLine> {
public:
    FileLineWidgetSubject(Stage& stage, const Taste& taste);

protected:
    void make(const Operation& beginning) override;
    bool isUsableAlone() const override { return false; }
    void unmake() override {
        CopyingSubject::unmake();
        m_pUser.reset();
    }
    std::string state() override;

private:
    void addOwnActions();
    QLineEdit* field() const { return support::child<QLineEdit>(first()); }

    FileSettings m_settings;
    std::unique_ptr<FileUser> m_pUser;
};

FileLineWidgetSubject::FileLineWidgetSubject(Stage& stage, const Taste& taste)
    : CopyingSubject(stage, taste) {
    FileUser user([](const std::string&) {});
    TEVU::CFileDialog().GetOpenFileName("", TEVU::CFileDialog::UseWorkingDir);
    beginning({Taste::amongTexts(c_vPaths), Taste::amongTexts({c_vFilters[0], c_vFilters[1]}),
               Taste::index(0, 2)});
    addWidgetActions();
    addRubbishActions();
    addGestureActions();
    addKeyActions({"a", "/", ".", "5", " ", "Return", "Escape", "Left", "Right", "Home", "End",
                   "Backspace", "Delete", "Tab", "Backtab"});
    addOwnActions();
    addCopyActions();
}

void FileLineWidgetSubject::make(const Operation& beginning) {
    FileSettings::clear();
    m_pUser = std::make_unique<FileUser>([this](const std::string& line) { tell(line); });
    auto* const line = new OpenLine(
        QString::fromUtf8(beginning.text(0).c_str()), QString::fromUtf8(beginning.text(1).c_str()),
        static_cast<OpenLine::EnDialogMode>(beginning.integer(2)), m_stage.place(), "line");
    support::child<QPushButton>(line)->setFixedSize(40, 24); // not what the style wants
    line->setGeometry(10, 10, 300, 30);
    adopt(line, "line");
    m_pUser->setParent(line);
    target(field(), "field", false);
    target(support::child<QPushButton>(line), "button");
    m_stage.recorder().tap(field(), "textChanged(const QString&)", "field");
    line->show();
    m_stage.addNeighbourBehind();
}

void FileLineWidgetSubject::addOwnActions() {
    std::vector<std::string> several = c_vPaths;
    several.insert(several.end(), {"", "/data/a.tif\n/data/b.PNG", "/data/a.tif\n/data/x.gz"});
    action("choose", 12, {Taste::amongTexts(several)},
           [this](const Operation& operation) { m_pUser->choose(operation.text(0)); });
    action("press", 6, {Taste::amongTexts(c_vAnswers)},
           [this](const Operation& operation) { m_pUser->press(operation.text(0)); });
    action("set", 4,
           {Taste::amongTexts({"exists", "exists", "readable", "writable"}),
            Taste::amongTexts(c_vPaths), Taste::flag(70)},
           [this](const Operation& operation) {
               m_pUser->set(operation.text(0), operation.text(1), operation.flag(2));
           });
    onOne("setFilename", 4, {m_taste.text()}, [this](OpenLine& line, const Operation& operation) {
        if (!field()->text().isEmpty() || !operation.text(0).empty())
            line.setFilename(QString::fromUtf8(operation.text(0).c_str()));
    });
    action("browse", 6, {}, [this](const Operation&) {
        if (first())
            first()->SlotOpenFileDialog();
        m_pUser->forget();
    });
}

std::string FileLineWidgetSubject::state() {
    std::string state = widgetState();
    if (first())
        state += "; " + shown(first()->filename()) + ' ' + fieldState(field());
    return state + ';' + FileSettings::text();
}

} // namespace

std::unique_ptr<Subject> fileLineWidget(Stage& stage, const Taste& taste) {
    return std::make_unique<FileLineWidgetSubject>(stage, taste);
}

} // namespace differential
