#ifndef RUQGUI_GALLERY_IMAGEHEADERPAGE_H
#define RUQGUI_GALLERY_IMAGEHEADERPAGE_H

#include <CFileLineWidget.h>
#include <CHeaderFieldsWidget.h>
#include <memory>
#include <qt3/Label.h>
#include <qt3/Layout.h>
#include <qt3/TextEdit.h>
#include <qt3/Widget.h>
#include <string>

class SignalLog;
struct Options;

namespace TEVU {
class CImage;
}

/// Opens a TIFF file, edits its header, saves it.
class ImageHeaderPage : public qt3::Widget {
    Q_OBJECT

public:
    ImageHeaderPage(QWidget* parent, SignalLog& log);
    ~ImageHeaderPage() override;

    /// Shows the image of a file. If that fails, the image shown before stays, and a line says why.
    bool load(const std::string& path);

private slots:
    void open();
    void save();
    void saveAs();
    void fileChanged(const QString& path);

private:
    QWidget* createFileRow();
    QWidget* createImageRow();
    QWidget* createPreview(QWidget* parent);
    void showImage();
    void showPreview();
    void watchFields();
    void saveTo(const std::string& path);
    void say(const std::string& message);
    void complain(const char* caption, const std::string& message);

    SignalLog& m_log;
    std::unique_ptr<TEVU::CImage> m_pImage;
    std::string m_sPath; ///< Of the image shown; empty for the sample.
    TEVU::CFileLineWidget* m_pFile;
    QWidget* m_pFieldsPlace;
    qt3::VBoxLayout* m_pFieldsLayout;
    TEVU::CHeaderFieldsWidget* m_pFields; ///< Made anew for each image.
    qt3::Label* m_pPicture;
    qt3::Label* m_pCaption;
    qt3::TextEdit* m_pMessage;
};

QWidget* createImageHeaderPage(QWidget* parent, SignalLog& log, const Options& options);

#endif
