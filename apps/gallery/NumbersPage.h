#ifndef RUQGUI_GALLERY_NUMBERSPAGE_H
#define RUQGUI_GALLERY_NUMBERSPAGE_H

#include <CDoubleLineEdit.h>
#include <CDoubleSpinBox.h>
#include <qt3/Widget.h>

class SignalLog;
struct Options;

/// A double spin box with all its options beside it, and double line edits of several precisions.
class NumbersPage : public qt3::Widget {
    Q_OBJECT

public:
    NumbersPage(QWidget* parent, SignalLog& log);

private slots:
    void setPrefix(const QString& text);
    void setSuffix(const QString& text);
    void setSpecialText(const QString& text);
    void setWrapping(bool on);
    void setPlusMinus(bool on);
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setStep(double step);

private:
    QWidget* createSpinBox(SignalLog& log);
    QWidget* createOptions();
    QWidget* createLineEdits(SignalLog& log);

    TEVU::CDoubleSpinBox* m_pSpinBox;
};

QWidget* createNumbersPage(QWidget* parent, SignalLog& log, const Options& options);

#endif
