#ifndef RUQGUI_GALLERY_DATAPAGE_H
#define RUQGUI_GALLERY_DATAPAGE_H

class QWidget;
class SignalLog;
struct Options;

/// The data services: open images through a filter, a settings file with a stamp, a generated dialog.
QWidget* createDataPage(QWidget* parent, SignalLog& log, const Options& options);

#endif
