#ifndef RUQGUI_CFILELINEWIDGET_H
#define RUQGUI_CFILELINEWIDGET_H

#include <qstring.h>
#include <qstringlist.h>
#include <qt3/Export.h>
#include <qt3/LineEdit.h>
#include <qt3/PushButton.h>
#include <qt3/Widget.h>

namespace TEVU {

/// A field for a path with a "..." button that opens the file dialog and puts the choice into the
/// field.
///
/// Good for a path in a form. What the user types is not checked; check filename() when it is used.
/// \code
/// auto* line = new TEVU::CFileLineWidget("", "Images (*.tif *.tiff)",
///                                        TEVU::CFileLineWidget::eOpenFile, this, "input");
/// layout->addWidget(line);
/// // ...
/// load(line->filename());
/// \endcode
///
/// Invariants:
/// 1. Mode and filter are fixed at construction.
/// 2. A cancelled dialog changes nothing.
///
/// It has no signals of its own: the field announces its new text with textChanged().
///
/// GUI thread only. A copy has the state and the child pointers of its original, whose children
/// they remain: use the copy only as long as the original lives.
class RUQGUI_EXPORT CFileLineWidget : public qt3::Widget {
    Q_OBJECT

public:
    enum EnDialogMode {
        eOpenFile = 0, ///< One existing file.
        eSaveFile = 1, ///< A name to save under; the text of the field is proposed.
        eOpenFiles = 2 ///< Several existing files, joined by commas in the field; none is escaped.
    };

    /// \param fileName the first text of the field
    /// \param filter of the dialog, such as "Images (*.tif *.tiff);;All files (*)"; saving needs at
    ///        least one pattern "*.extension"
    CFileLineWidget(const QString& fileName, const QString& filter, EnDialogMode mode,
                    QWidget* parent, const char* name);
    CFileLineWidget(const CFileLineWidget& other);
    CFileLineWidget& operator=(const CFileLineWidget& other);
    ~CFileLineWidget();

    QString filename() const;           ///< The text of the field.
    void setFilename(QString fileName); ///< Replaces the text of the field.

protected slots:
    /// Runs the dialog and, unless it was cancelled, shows what was chosen.
    /// Throws what the save dialog throws for a filter without a pattern.
    void SlotOpenFileDialog();

private:
    qt3::LineEdit* m_pLineEdit;       ///< A child.
    qt3::PushButton* m_pBrowseButton; ///< A child.
    EnDialogMode m_eMode;
    QString m_sFilter;
    QStringList m_lPaths; ///< Of the last successful choice.
};

} // namespace TEVU

#endif
