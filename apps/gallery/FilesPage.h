#ifndef RUQGUI_GALLERY_FILESPAGE_H
#define RUQGUI_GALLERY_FILESPAGE_H

#include <CFileDialog.h>
#include <qt3/Label.h>
#include <qt3/LineEdit.h>
#include <qt3/TextEdit.h>
#include <qt3/Widget.h>

class SignalLog;
struct Options;

/// Every way to ask for files, and what the library remembers of them.
class FilesPage : public qt3::Widget {
    Q_OBJECT

public:
    FilesPage(QWidget* parent, SignalLog& log);

private slots:
    void openOne();
    void openSeveral();
    void saveOverwriting();
    void saveAppending();
    void showRemembered();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* createAsking();
    QWidget* createOutcome();
    QWidget* createRemembered();
    QWidget* createLines();
    void save(TEVU::CFileDialog::EnSaveMode mode);
    void showOutcome(bool chosen);
    std::string filter() const;

    SignalLog& m_log;
    qt3::LineEdit* m_pFilter;
    qt3::LineEdit* m_pName;
    qt3::Label* m_pResult;
    qt3::TextEdit* m_pPaths;
    qt3::Label* m_pExtension;
    qt3::TextEdit* m_pRemembered;
    TEVU::CFileDialog m_dialog;
};

QWidget* createFilesPage(QWidget* parent, SignalLog& log, const Options& options);

#endif
