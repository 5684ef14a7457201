#ifndef RUQGUI_GALLERY_SMALLWIDGETSPAGE_H
#define RUQGUI_GALLERY_SMALLWIDGETSPAGE_H

class QWidget;
class SignalLog;
struct Options;

/// Colour buttons, and the text edit that pastes without line breaks.
QWidget* createSmallWidgetsPage(QWidget* parent, SignalLog& log, const Options& options);

#endif
