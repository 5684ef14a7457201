#ifndef RUQGUI_TESTS_SUPPORT_SCRIPTEDUSER_H
#define RUQGUI_TESTS_SUPPORT_SCRIPTEDUSER_H

#include "ToolkitStandIn.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

/// Answers dialogs and boxes at once, in their order, and notes how they were asked for.
/// \code
/// ScriptedUser user;
/// user.answer("/data/a.jpg");
/// user.answer("Cancel");
/// EXPECT_FALSE(dialog.GetSaveFileName("a", "Images (*.png)", CFileDialog::eOverwrite));
/// EXPECT_EQ(user.takeLog(), (Lines{"native dialogs off", "save '/home/a.png' …", …}));
/// \endcode
/// Without a further answer everything is cancelled.
class ScriptedUser : public ToolkitStandIn {
public:
    using Lines = std::vector<std::string>;

    /// \a text is a path ("" cancels; several are separated by line breaks), the label of a button, or
    /// a colour such as "#ff0000"; \a before runs before it is given.
    void answer(const std::string& text, const std::function<void()>& before = nullptr);

    /// The parent that every dialog and box must have; a line tells of another one.
    void setParent(QWidget* parent) { m_pParent = parent; }

    /// The lines since the last call, and how many answers were left over.
    Lines takeLog();

    /// The start paths of the dialogs only.
    Lines takeStarts();

    QStringList run(const FileDialogCall& call) override;
    int warn(const WarningCall& call) override;
    int inform(const WarningCall& call) override;
    QColor chooseColor(const QColor& initial, QWidget* parent, const std::string& name) override;
    void useNativeDialogs(bool use) override;

protected:
    /// Takes a line of the log.
    virtual void note(const std::string& line) { m_vLog.push_back(line); }

    /// The next answer to a file dialog or a colour dialog, and to a box.
    virtual std::string nextChoice() { return next(); }
    virtual std::string nextButton() { return next(); }

    void forgetAnswers() { m_vAnswers.clear(); }

private:
    std::string next();
    void checkParent(const QWidget* parent);
    int askedBy(const std::string& icon, const WarningCall& call);

    struct Answer {
        std::string text;
        std::function<void()> before;
    };
    std::deque<Answer> m_vAnswers;
    QWidget* m_pParent = nullptr;
    Lines m_vLog;
    Lines m_vStarts;
};

/// How the log writes them.
namespace script {

std::string openOne(const std::string& start, const std::string& filter);
std::string openSeveral(const std::string& start, const std::string& filter);
std::string save(const std::string& start, const std::string& filter);
std::string boxText(const std::string& caption, const std::string& text,
                    const std::string& buttons);
std::string warning(const std::string& caption, const std::string& text,
                    const std::string& buttons);

} // namespace script

#endif
