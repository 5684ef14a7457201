#include "FilesPage.h"

#include "Form.h"
#include "SignalLog.h"

#include <CFileLineWidget.h>
#include <qt3/Descendants.h>
#include <qt3/MessageBox.h>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CRegistry.h>

using TEVU::CFileDialog;
using TEVU::CFileLineWidget;

namespace {

const char* const c_sFirstFilter =
    "Images (*.tif *.tiff *.png);;Reconstructions (*.rek.gz);;Surfaces (*.stl.gz)";

} // namespace

FilesPage::FilesPage(QWidget* parent, SignalLog& log)
    : qt3::Widget(parent, "filesPage"), m_log(log), m_dialog(this) {
    auto* row = new qt3::HBoxLayout(this, 8, 8);
    auto* left = new qt3::VBoxLayout(row, 8);
    left->addWidget(createAsking());
    left->addWidget(createLines(), 1);
    auto* right = new qt3::VBoxLayout(row, 8);
    right->addWidget(createOutcome());
    right->addWidget(createRemembered(), 1);
    showOutcome(false);
    m_pResult->setText("Not asked yet");
}

QWidget* FilesPage::createAsking() {
    auto* box = new qt3::GroupBox("Ask for files", this, "asking");
    auto* column = columnIn(box);
    m_pFilter = addField(box, column, "Filter:", c_sFirstFilter);
    m_pName = addField(box, column, "Proposed name when saving:", "result");
    const struct {
        const char* m_sText;
        const char* m_sSlot;
    } buttons[] = {{"Open one file...", SLOT(openOne())},
                   {"Open several files...", SLOT(openSeveral())},
                   {"Save, overwriting...", SLOT(saveOverwriting())},
                   {"Save, appending...", SLOT(saveAppending())}};
    for (const auto& button : buttons) {
        auto* pushButton = new qt3::PushButton(button.m_sText, box);
        connect(pushButton, SIGNAL(clicked()), this, button.m_sSlot);
        column->addWidget(pushButton);
    }
    return box;
}

QWidget* FilesPage::createOutcome() {
    auto* box = new qt3::GroupBox("What was chosen", this, "outcome");
    auto* column = columnIn(box);
    m_pResult = addText(box, column, "", "result");
    m_pPaths = addPane(box, column, "chosenPaths", 6);
    m_pExtension = addMessage(box, column, "", "extension");
    return box;
}

QWidget* FilesPage::createRemembered() {
    auto* box = new qt3::GroupBox("Remembered, also for the next start", this, "remembered");
    m_pRemembered = addPane(box, columnIn(box), "rememberedPaths", 0);
    return box;
}

QWidget* FilesPage::createLines() {
    auto* box = new qt3::GroupBox("The same as a line of a form", this, "lines");
    auto* column = columnIn(box);
    const struct {
        const char* m_sLabel;
        CFileLineWidget::EnDialogMode m_eMode;
        const char* m_sName;
    } lines[] = {{"One file:", CFileLineWidget::eOpenFile, "openLine"},
                 {"A file to save:", CFileLineWidget::eSaveFile, "saveLine"},
                 {"Several files:", CFileLineWidget::eOpenFiles, "openSeveralLine"}};
    for (const auto& line : lines) {
        addText(box, column, line.m_sLabel);
        auto* widget = new CFileLineWidget("", c_sFirstFilter, line.m_eMode, box, line.m_sName);
        m_log.watch(qt3::child<qt3::LineEdit>(widget), line.m_sName);
        connect(qt3::child<qt3::PushButton>(widget), SIGNAL(clicked()), this,
                SLOT(showRemembered())); // comes when the line's own dialog is over
        column->addWidget(widget);
    }
    return box;
}

void FilesPage::openOne() {
    showOutcome(m_dialog.GetOpenFileName(filter(), CFileDialog::UseWorkingDir));
}

void FilesPage::openSeveral() {
    showOutcome(m_dialog.GetOpenFileNames(filter(), CFileDialog::UseWorkingDir) > 0);
}

void FilesPage::saveOverwriting() {
    save(CFileDialog::eOverwrite);
}

void FilesPage::saveAppending() {
    save(CFileDialog::eAppend);
}

void FilesPage::save(CFileDialog::EnSaveMode mode) {
    try {
        showOutcome(m_dialog.GetSaveFileName(qt3::ascii(m_pName->text()), filter(), mode));
    } catch (const TEVU::CException& error) {
        qt3::MessageBox::warning(this, "Unable to ask for a name", qt3::fromAscii(error.what()),
                                 qt3::MessageBox::Ok, 0);
    }
}

// Other pages ask for files too.
void FilesPage::showEvent(QShowEvent* event) {
    qt3::Widget::showEvent(event);
    showRemembered();
}

void FilesPage::showOutcome(bool chosen) {
    const QStringList paths = m_dialog.FilePathsAsQStringList();
    if (chosen)
        m_pResult->setText("Chosen:");
    else
        m_pResult->setText(paths.isEmpty() ? "Cancelled"
                                           : "Cancelled. Still from the last choice:");
    m_pPaths->setText(paths.join("\n"));
    m_pExtension->setText(qt3::fromAscii("Extension: " + m_dialog.FileExtension(false)));
    showRemembered();
}

void FilesPage::showRemembered() {
    std::string text;
    for (const char* key :
         {"loadingdir", "savingdir", "lastimage0", "lastimage1", "lastimage2", "lastimage3"}) {
        const std::string value =
            TEVU::CRegistry::Obj().GetString(std::string("main/globalsettings/IO/") + key, "");
        text += std::string(key) + ":  " + (value.empty() ? "-" : value) + "\n";
    }
    m_pRemembered->setText(qt3::fromAscii(text));
}

std::string FilesPage::filter() const {
    return qt3::ascii(m_pFilter->text());
}

QWidget* createFilesPage(QWidget* parent, SignalLog& log, const Options&) {
    return new FilesPage(parent, log);
}
