#ifndef RUQGUI_TESTS_FILES_SCRIPTEDUSER_H
#define RUQGUI_TESTS_FILES_SCRIPTEDUSER_H

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

    /// \a text is a path ("" cancels; several are separated by line breaks) or the label of a
    /// button; \a before runs before it is given.
    void answer(const std::string& text, const std::function<void()>& before = nullptr);

    /// The parent that every dialog and box must have; a line tells of another one.
    void setParent(QWidget* parent) { m_pParent = parent; }

    /// The lines since the last call, and how many answers were left over.
    Lines takeLog();

    /// The start paths of the dialogs only.
    Lines takeStarts();

    QStringList run(const FileDialogCall& call) override;
    int warn(const WarningCall& call) override;
    void useNativeDialogs(bool use) override;

private:
    std::string next();
    void checkParent(const QWidget* parent);

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
std::string warning(const std::string& caption, const std::string& text,
                    const std::string& buttons);

} // namespace script

#endif
