#ifndef RUQGUI_TESTS_TOOLKIT_SPECIMENS_H
#define RUQGUI_TESTS_TOOLKIT_SPECIMENS_H

#include <qt3/TextEdit.h>
#include <qt3/Widget.h>

#include <qobject.h>
#include <qstring.h>

#include <string>
#include <vector>

/// Small classes with a meta-object, as the library's own are.
namespace specimen {

typedef std::vector<std::string> Lines;

/// Writes down the calls that the toolkit makes.
class CTalkingWidget : public qt3::Widget {
    Q_OBJECT

public:
    CTalkingWidget(QWidget* parent = 0, const char* name = 0);
    void setEnabled(bool enabled);

    Lines m_vCalls;

protected:
    void enabledChange(bool oldEnabled);
    void styleChange(QStyle& style);

protected slots:
    virtual void languageChange();
};

/// Writes down each paste.
class CPastingEdit : public qt3::TextEdit {
    Q_OBJECT

public:
    CPastingEdit(QWidget* parent = 0, const char* name = 0);

    Lines m_vCalls;

public slots:
    void paste();
};

/// Writes down the texts that it is told.
class CListener : public QObject {
    Q_OBJECT

public:
    Lines m_vTexts;

public slots:
    void hear(const QString& text);
};

/// Has slots and signals of all accesses.
class CTables : public qt3::Widget {
    Q_OBJECT

public:
    CTables(QWidget* parent = 0, const char* name = 0);

signals:
    void happened(int count, const QString& reason);
    void ended();

public slots:
    void first(int value);
    int second();
    void third(QString byValue);

protected slots:
    void fourth(const QString& text, double number);

private slots:
    void fifth();
};

/// Has all else that a meta-object can tell.
class CDescribed : public QObject {
    Q_OBJECT
    Q_CLASSINFO("purpose", "test")
    Q_PROPERTY(int number READ number)
    Q_ENUMS(Fruit)

public:
    enum Fruit { Apple, Pear };
    int number() const { return 1; }
};

/// Adds nothing to it.
class CDerived : public CDescribed {
    Q_OBJECT
};

} // namespace specimen

#endif
