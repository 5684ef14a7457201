#include "Subjects.h"

#include "../CopyingSubject.h"
#include "../User.h"

#include <CHeaderFieldsWidget.h>
#include <Looks.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/COrunHeaderTools.h>

namespace differential {

namespace {

using TEVU::CImage;
using TEVU::COrunHeaderTools;

/// Opens what is protected.
class OpenForm : public TEVU::CHeaderFieldsWidget {
public:
    using CHeaderFieldsWidget::CHeaderFieldsWidget;
    using CHeaderFieldsWidget::languageChange;

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};
};

const std::vector<std::string> c_vUnits = {"m", "mm", "um", "nm"};

class HeaderFieldsSubject : public CopyingSubject<OpenForm> {
public:
    HeaderFieldsSubject(Stage& stage, const Taste& taste);

protected:
    void make(const Operation&) override;
    bool isUsableAlone() const override { return false; }
    void unmake() override {
        CopyingSubject::unmake();
        m_pUser.reset();
        m_pImage.reset();
    }
    bool takesKey(const std::string& name) override;
    QSize leastSize() override { return c_size; }
    QSize greatestSize() override { return c_size; }
    std::string state() override;

private:
    void addFormActions();
    void addFieldActions();
    void addImageActions();
    void onForm(const std::string& name, int weight, const std::vector<Source>& sources,
                const std::function<void(OpenForm&, const Operation&)>& perform);
    void chooseUnit(const std::string& key);
    std::string imageState() const;

    const QSize c_size = QSize(577, 579);
    std::unique_ptr<User> m_pUser;
    std::unique_ptr<CImage> m_pImage;
};

HeaderFieldsSubject::HeaderFieldsSubject(Stage& stage, const Taste& taste)
    : CopyingSubject(stage, taste) {
    beginning({});
    addWidgetActions();
    addRubbishActions();
    std::vector<std::string> keys = commonKeys();
    for (const char* typed : {"1", "2", "5", "0", "9", ".", "-", "+", "e", " ", "a", ",", "\xe9"})
        keys.emplace_back(typed);
    addKeyActions(keys);
    addFormActions();
    addFieldActions();
    addImageActions();
    addCopyActions();
}

void HeaderFieldsSubject::make(const Operation&) {
    m_pUser = std::make_unique<User>([this](const std::string& line) { tell(line); });
    m_pUser->setParent(m_stage.before()->parentWidget());
    m_pImage = std::make_unique<CImage>(TEVU::IImage::CType::eUInt8, TEVU::CSize(2, 2, 2));
    auto* const form = new OpenForm(m_stage.place());
    form->resize(c_size);
    adopt(form, "form");
    const std::pair<QWidget*, const char*> fields[] = {
        {form->xSpacingLine, "x"},      {form->ySpacingLine, "y"},
        {form->zSpacingLine, "z"},      {form->comboUnit, "unit"},
        {form->creatorLine, "creator"}, {form->descriptionText, "description"},
        {form->historyText, "history"}, {form, "form"}};
    for (const auto& [field, label] : fields)
        target(field, label, false);
    support::keepLinesWhole(form->descriptionText);
    support::keepLinesWhole(form->historyText);
    form->show();
    m_stage.addNeighbourBehind();
}

// In a text edit up and down go by pixels, Insert is the platform's, and where a selection is left for
// is the host's choice; in the box the keys that choose are actions of their own.
bool HeaderFieldsSubject::takesKey(const std::string& name) {
    const std::string who = m_stage.focus();
    if (who == "unit")
        return name == "Tab" || name == "Backtab";
    if (who != "description" && who != "history")
        return true;
    if (name == "Left" || name == "Right")
        return support::selectionOf(who == "history" ? first()->historyText
                                                     : first()->descriptionText)
            .empty();
    return name != "Up" && name != "Down" && name != "Page Up" && name != "Page Down" &&
           name != "Insert";
}

void HeaderFieldsSubject::onForm(const std::string& name, int weight,
                                 const std::vector<Source>& sources,
                                 const std::function<void(OpenForm&, const Operation&)>& perform) {
    onOne(name, weight, sources, [this, perform](OpenForm& form, const Operation& operation) {
        try {
            perform(form, operation);
        } catch (const std::string& fault) {
            tell("throws " + quoted(fault));
        }
    });
}

void HeaderFieldsSubject::addFormActions() {
    const Source real = m_taste.real();
    const Source known = Taste::amongTexts(c_vUnits);
    const Source unit = Taste::amongTexts({"m", "mm", "um", "nm", "m", "mm", "um", "nm", "km", ""});
    const auto text = [](const Operation& o) { return QString(o.text(0).c_str()); };
    onForm("SetSpacings", 3, {real, real, real},
           [](OpenForm& f, const Operation& o) { f.SetSpacings(o.real(0), o.real(1), o.real(2)); });
    onForm("SetUnit", 3, {unit}, [=](OpenForm& f, const Operation& o) { f.SetUnit(text(o)); });
    onForm("unitChanged", 3, {unit},
           [=](OpenForm& f, const Operation& o) { f.onComboUnitTextChanged(text(o)); });
    onForm("SetTextX", 2, {real}, [](OpenForm& f, const Operation& o) { f.SetTextX(o.real(0)); });
    onForm("SetTextY", 2, {real}, [](OpenForm& f, const Operation& o) { f.SetTextY(o.real(0)); });
    onForm("SetTextZ", 2, {real}, [](OpenForm& f, const Operation& o) { f.SetTextZ(o.real(0)); });
    if (m_taste.isRubbish())
        onForm("nullEvents", 1, {}, [](OpenForm& f, const Operation&) {
            f.eventFilter(nullptr, nullptr);
            f.eventFilter(f.descriptionText, nullptr);
        });
    onForm("languageChange", 1, {}, [](OpenForm& f, const Operation&) { f.languageChange(); });
    action("chooseUnit", 6, {Taste::amongTexts({"Up", "Down", "Home", "End"})},
           [this](const Operation& operation) { chooseUnit(operation.text(0)); });
}

// Only what changes the unit: Qt 3.3 tells of a choice that does not, too. And no unit that a text of
// nobody's has replaced: choosing it throws, through the toolkit.
void HeaderFieldsSubject::chooseUnit(const std::string& key) {
    if (!first() || m_stage.focus() != "unit")
        return;
    const qt3::ComboBox* const box = first()->comboUnit;
    const int last = box->count() - 1;
    const int now = box->currentItem();
    const int next = key == "Up" ? now - 1 : key == "Down" ? now + 1 : key == "Home" ? 0 : last;
    if (next < 0 || next > last || next == now)
        return;
    const std::string unit = support::text(box->text(next));
    if (std::find(c_vUnits.begin(), c_vUnits.end(), unit) == c_vUnits.end())
        return;
    const std::pair<const char*, int> codes[] = {
        {"Up", Qt::Key_Up}, {"Down", Qt::Key_Down}, {"Home", Qt::Key_Home}, {"End", Qt::Key_End}};
    for (const auto& [name, code] : codes) {
        if (key == name)
            support::sendKey(first()->comboUnit, code);
    }
}

void HeaderFieldsSubject::addFieldActions() {
    const Source any = m_taste.text();
    const auto text = [](const Operation& o) {
        return QString::fromUtf8(o.text(1).c_str()).remove(QChar('\r'));
    };
    onForm("setField", 5, {Taste::index(0, 3), any}, [=](OpenForm& f, const Operation& o) {
        QLineEdit* const fields[] = {f.xSpacingLine, f.ySpacingLine, f.zSpacingLine, f.creatorLine};
        fields[o.integer(0) & 3]->setText(text(o));
    });
    onForm("setBox", 2, {Taste::flag(), any}, [=](OpenForm& f, const Operation& o) {
        (o.flag(0) ? f.descriptionText : f.historyText)->setText(text(o));
    });
    onForm("enableZ", 1, {Taste::flag()},
           [](OpenForm& f, const Operation& o) { f.zSpacingLine->setEnabled(o.flag(0)); });
}

void HeaderFieldsSubject::addImageActions() {
    action("newImage", 3, {Taste::index(1, 3)}, [this](const Operation& operation) {
        const TEVU::CSize sizes[] = {TEVU::CSize(4), TEVU::CSize(4, 3), TEVU::CSize(4, 3, 2)};
        *m_pImage = CImage(TEVU::IImage::CType::eUInt8, sizes[(operation.integer(0) - 1) % 3U]);
    });
    const Source spacing = m_taste.isRubbish()
                               ? m_taste.real()
                               : Taste::among({1e-6, 2e-6, 0.001, 0.05, 0.0, 200000.0, 1.5, 2.5e-9,
                                               1e-3, 0.009999999});
    action("setImageSpacing", 3, {spacing, spacing, spacing}, [this](const Operation& operation) {
        COrunHeaderTools::SetSpacing(*m_pImage, operation.real(0), operation.real(1),
                                     operation.real(2));
    });
    action("setImageText", 2, {Taste::index(0, 2), m_taste.text()}, [this](const Operation& o) {
        const std::string text = o.text(1).substr(0, o.text(1).find('\r'));
        const auto length = static_cast<unsigned>(text.size());
        if (o.integer(0) == 0)
            COrunHeaderTools::SetCreator(*m_pImage, text.data(), length);
        else if (o.integer(0) == 1)
            COrunHeaderTools::SetDescription(*m_pImage, text.data(), length);
        else
            COrunHeaderTools::ReplaceHistory(*m_pImage, text.data(), length);
    });
    action("setFeatures", 2, {Taste::flag(75)}, [this](const Operation& operation) {
        TEVU::CValue* value = new TEVU::CValueLong(1);
        if (operation.flag(0)) {
            delete value;
            value = new TEVU::CValueMap;
        }
        m_pImage->Header().SetEntry(COrunHeaderTools::c_sTagFeatures, value);
    });
    action("answer", 3, {Taste::amongTexts({"Yes", "Yes", "No", ""})},
           [this](const Operation& operation) { m_pUser->answer(operation.text(0)); });
    onForm("read", 5, {},
           [this](OpenForm& f, const Operation&) { f.ReadAttributesFromImage(*m_pImage); });
    onForm("write", 5, {}, [this](OpenForm& f, const Operation&) {
        tell("write " + shown(f.WriteAttributesToImage(*m_pImage)));
    });
}

std::string HeaderFieldsSubject::imageState() const {
    double spacing[] = {0.0, 0.0, 0.0};
    std::string state;
    if (COrunHeaderTools::GetSpacing(*m_pImage, spacing[0], spacing[1], spacing[2]))
        state = shown(spacing[0]) + ' ' + shown(spacing[1]) + ' ' + shown(spacing[2]);
    std::string text;
    for (const auto get : {COrunHeaderTools::GetCreator, COrunHeaderTools::GetDescription,
                           COrunHeaderTools::GetHistory})
        state += get(*m_pImage, text) ? ' ' + quoted(text) : " -";
    const bool features = m_pImage->Header().HasEntry(COrunHeaderTools::c_sTagFeatures);
    return state + (features ? ", features" : "");
}

std::string HeaderFieldsSubject::state() {
    std::string state = widgetState();
    OpenForm* const form = first();
    if (!form)
        return state;
    state += "; unit " + shown(form->comboUnit->currentText()) + '@' +
             shown(form->comboUnit->currentItem());
    for (const QLineEdit* field :
         {form->xSpacingLine, form->ySpacingLine, form->zSpacingLine, form->creatorLine})
        state += "; " + fieldState(field) + (field->isEnabled() ? "" : " off");
    for (const qt3::TextEdit* box : {form->descriptionText, form->historyText})
        state += "; " + shown(box->text()) + '@' + shown(support::cursorOf(box));
    return state + "; image " + imageState();
}

} // namespace

std::unique_ptr<Subject> headerFields(Stage& stage, const Taste& taste) {
    return std::make_unique<HeaderFieldsSubject>(stage, taste);
}

} // namespace differential
