#ifndef RUQGUI_TESTS_SUPPORT_MODALDRIVER_H
#define RUQGUI_TESTS_SUPPORT_MODALDRIVER_H

#include "Dialogs.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <qobject.h>
#include <string>
#include <vector>

class QWidget;

namespace support {

/// What is left out, or given as {}, is not compared. A text that must be empty is given as "".
struct Message {
    std::optional<std::string> caption = {};
    std::optional<std::string> text = {};
    std::vector<std::string> buttons = {};         ///< In the order given; labels without "&".
    std::optional<std::string> defaultButton = {}; ///< What Return presses.
    std::optional<std::string> escapeButton = {};  ///< "" if Escape answers with no button.
};

struct FileRequest {
    std::optional<std::string> name = {}; ///< The object name.
    std::optional<std::string> caption = {};
    std::optional<std::string> folder = {};   ///< The folder shown, absolute.
    std::optional<std::string> fileName = {}; ///< What the name field holds at first.
    std::vector<std::string> filters = {};
    std::optional<std::string> mode = {}; ///< "open", "open several" or "save".
};

struct ColorRequest {
    std::optional<std::string> name = {};
    std::optional<std::string> initial = {}; ///< Such as "#ffffff".
};

/// Any other modal dialog.
struct DialogRequest {
    std::optional<std::string> name = {};
    std::optional<std::string> caption = {};
};

/// One expected dialog: what it must look like, and what the user does with it. Without an answer
/// the user closes it.
class Step {
public:
    virtual ~Step() = default;

    void escape(); ///< The Escape key.
    void close();  ///< The window's close button.

protected:
    friend class ModalDriver;
    using Check = std::function<void(QWidget* dialog, std::vector<std::string>& differences)>;
    using Act = std::function<void(QWidget* dialog)>;

    void answerWith(const std::string& description, Act act);
    void checkParent(QWidget* parent);

    DialogKind m_kind = DialogKind::Other;
    std::string m_sExpected;
    std::vector<Check> m_vChecks;
    std::function<void()> m_hook;
    std::string m_sAnswer;
    Act m_act;
};

/// What comes before the answer, in a chain that ends with it.
template <class S>
class StepOf : public Step {
public:
    /// Runs while the dialog is open, before the answer.
    S& before(std::function<void()> hook) {
        m_hook = hook;
        return static_cast<S&>(*this);
    }

    /// The dialog must have that parent; null if it must have none.
    S& under(QWidget* parent) {
        checkParent(parent);
        return static_cast<S&>(*this);
    }
};

class MessageStep : public StepOf<MessageStep> {
public:
    void answer(const std::string& button); ///< Clicks the button with that label, such as "Yes".
    void enter();                           ///< The Return key.
};

class FileStep : public StepOf<FileStep> {
public:
    void choose(const std::string& path); ///< Typed as it stands, then Open or Save.
    void chooseSeveral(const std::vector<std::string>& paths);
    void accept(); ///< Open or Save with the name that is there.
    void cancel(); ///< The Cancel button.
};

class ColorStep : public StepOf<ColorStep> {
public:
    void accept(const QColor& color);
    void accept(); ///< OK with the colour that is there.
    void cancel(); ///< The Cancel button.
};

class DialogStep : public StepOf<DialogStep> {
public:
    /// \a user must end the dialog.
    void act(std::function<void(QWidget* dialog)> user);
};

/// Plays the user of modal dialogs, which otherwise would wait for ever: a script of the dialogs
/// that must come, in their order, with an answer to each. \code support::ModalDriver driver;
/// driver.expectFileDialog({"opendialog", "Choose a file...", "/data"}).choose("/data/a.tif");
/// driver.expectWarning({"Unable to read file", {}, {"Cancel", "Retry"}, "Retry", "Cancel"})
///     .under(&window)
///     .before([&] { makeReadable("/data/a.tif"); })
///     .answer("Retry");
/// EXPECT_TRUE(dialog.GetOpenFileName(filter, startDir));
/// driver.finish();
/// \endcode
///
/// The test fails for a dialog that does not look as expected, for one too many, for one that never
/// came, and for one that stays open after its answer. All of them are closed, so that the test
/// ends. Dialogs may be opened from within dialogs. One driver at a time.
class ModalDriver : public QObject {
public:
    ModalDriver();
    ~ModalDriver() override; ///< Calls finish().

    MessageStep& expectMessage(const Message& expected); ///< With any icon.
    MessageStep& expectInformation(const Message& expected);
    MessageStep& expectWarning(const Message& expected);
    FileStep& expectFileDialog(const FileRequest& expected);
    ColorStep& expectColorDialog(const ColorRequest& expected);
    DialogStep& expectDialog(const DialogRequest& expected);

    /// Fails the test for each dialog that has not come, and forgets the script.
    void finish();

    /// The dialogs so far, a line each, with their answers:
    /// "warning 'caption' 'text' [Cancel, Retry] -> Retry",
    /// "open 'opendialog' 'Choose a file...' in '/data' with '' -> '/data/a.tif'",
    /// "color 'Choose color' '#ffffff' -> '#ff0000'", "dialog 'name' 'caption' -> done".
    const std::vector<std::string>& log() const { return m_vLog; }

protected:
    void timerEvent(QTimerEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    using Clock = std::chrono::steady_clock;
    struct Open {
        QObject* dialog;
        Clock::time_point answered;
    };

    template <class S>
    S& add(DialogKind kind, const std::string& expected);
    MessageStep& addMessage(const std::optional<std::string>& icon, const Message& expected);
    void restartTimer();
    Open* find(QObject* dialog);
    void remember(QWidget* dialog);
    void meet(QWidget* dialog);
    static std::vector<std::string> compare(const Step& step, QWidget* dialog);
    void follow(Step& step, QWidget* dialog);
    void dismiss(QWidget* dialog);
    void watch(Open& open, QWidget* dialog);

    int m_nTimer = 0;
    std::vector<std::unique_ptr<Step>> m_vSteps;
    std::size_t m_nNext = 0;
    int m_nUnexpected = 0;
    std::vector<Open> m_vOpen; ///< The dialogs met that are still there.
    std::vector<std::string> m_vLog;
};

} // namespace support

#endif
