#include "CFileLineWidget.h"

#include "CFileDialog.h"

#include <qt3/Layout.h>
#include <qt3/Text.h>

namespace TEVU {

CFileLineWidget::CFileLineWidget(const QString& fileName, const QString& filter, EnDialogMode mode,
                                 QWidget* parent, const char* name)
    : qt3::Widget(parent, name), m_pLineEdit(nullptr), m_pBrowseButton(nullptr), m_eMode(mode),
      m_sFilter(filter) {
    auto* layout = new qt3::HBoxLayout(this, 0, -1);
    m_pLineEdit = new qt3::LineEdit(this, 0);
    layout->addWidget(m_pLineEdit);
    m_pBrowseButton = new qt3::PushButton("...", this, 0);
    layout->addWidget(m_pBrowseButton);
    connect(m_pBrowseButton, SIGNAL(clicked()), this, SLOT(SlotOpenFileDialog()));
    m_pLineEdit->setText(fileName);
}

CFileLineWidget::CFileLineWidget(const CFileLineWidget& other) = default;
CFileLineWidget& CFileLineWidget::operator=(const CFileLineWidget& other) = default;
CFileLineWidget::~CFileLineWidget() = default;

QString CFileLineWidget::filename() const {
    return m_pLineEdit ? m_pLineEdit->text() : QString();
}

void CFileLineWidget::setFilename(QString fileName) {
    if (m_pLineEdit)
        m_pLineEdit->setText(fileName);
}

void CFileLineWidget::SlotOpenFileDialog() {
    CFileDialog dialog(this);
    const std::string filter = qt3::ascii(m_sFilter);
    bool chosen = false;
    if (m_eMode == eOpenFile)
        chosen = dialog.GetOpenFileName(filter, CFileDialog::UseWorkingDir);
    else if (m_eMode == eSaveFile)
        chosen = dialog.GetSaveFileName(qt3::ascii(filename()), filter, CFileDialog::eOverwrite);
    else if (m_eMode == eOpenFiles)
        chosen = dialog.GetOpenFileNames(filter, CFileDialog::UseWorkingDir) > 0;
    if (!chosen)
        return;

    const QStringList paths = dialog.FilePathsAsQStringList();
    setFilename(m_eMode == eOpenFiles ? paths.join(",") : qt3::fromAscii(dialog.FilePath()));
    m_lPaths = paths;
}

} // namespace TEVU
