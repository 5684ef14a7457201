#ifndef RUQGUI_CHEADERFIELDSWIDGET_H
#define RUQGUI_CHEADERFIELDSWIDGET_H

#include <qstring.h>
#include <qt3/ComboBox.h>
#include <qt3/Export.h>
#include <qt3/GroupBox.h>
#include <qt3/Label.h>
#include <qt3/Layout.h>
#include <qt3/LineEdit.h>
#include <qt3/TextEdit.h>
#include <qt3/Widget.h>

namespace TEVU {

class CImage;

/// A form for the header of one image: the pixel spacing with its unit, creator, description,
/// history.
///
/// Fill it from an image, let the user edit, write it back:
/// \code
/// auto* fields = new TEVU::CHeaderFieldsWidget(this, "header");
/// fields->ReadAttributesFromImage(image);
/// // ... and on Save:
/// if (fields->WriteAttributesToImage(image))
///     TEVU::CImageFile::Write(image, path);
/// \endcode
/// It does not follow the image: after a change from outside, read again. It emits no signals of
/// its own; connect to those of its fields.
///
/// Invariants:
/// 1. The spacing fields are in the unit that comboUnit shows; what is stored is in metres.
/// 2. A unit change converts the fields and leaves the stored spacing alone.
/// 3. Neither text box takes a line break typed with Return or Enter; pasted text may have some.
/// 4. The z field, once disabled by a two-dimensional image, stays disabled.
///
/// GUI thread only. A copy has the state and the child pointers of its original, whose children
/// they remain: use the copy only as long as the original lives.
class RUQGUI_EXPORT CHeaderFieldsWidget : public qt3::Widget {
    Q_OBJECT

public:
    static const char m_cQtDoubleFormat; ///< 'g': the format of the numbers in the spacing fields.
    static const int m_nQtStringPrecision; ///< 10: their precision.

    /// \param flags the widget flags, passed on to the toolkit as they are.
    /// Without a name the object is called "CHeaderFieldsWidget". Throws a std::string if a
    /// translation has changed the text of a unit.
    CHeaderFieldsWidget(QWidget* parent = 0, const char* name = 0, unsigned int flags = 0);
    CHeaderFieldsWidget(const CHeaderFieldsWidget& other);
    CHeaderFieldsWidget& operator=(const CHeaderFieldsWidget& other);
    ~CHeaderFieldsWidget();

    /// Shows a spacing in metres, with six significant digits and in the unit "m", and keeps it as the
    /// known one. The z field is written even if it is disabled. Ends with onComboUnitTextChanged("m").
    void SetSpacings(double x, double y, double z);

    /// Fills the form. The spacing is shown in the unit that is natural for its largest part, and
    /// for a two-dimensional image the z field is disabled, for good. A one-dimensional image shows
    /// 0 m, whatever its spacing is. What the image does not have leaves its field as it was; without a
    /// spacing the unit becomes "m" all the same.
    void ReadAttributesFromImage(const CImage& image);

    /// Writes the form into the image: creator, history and description always, the spacing if it
    /// differs from the one read or set last, with a history entry "ChangeSpacing(old->new)". If the
    /// image has computed features, which a new spacing makes stale, a box under the application's main
    /// widget asks whether to remove them. The stored spacing stays as it was: read the image again
    /// before the next write.
    ///
    /// While the z field is enabled, the stored z is compared with the new x: a new z alone goes
    /// unnoticed where the two are equal, and where they are not, each write counts as a change.
    /// A spacing field that is no number counts as the stored spacing multiplied by the size of the
    /// unit in metres, or as one unit while none is stored.
    /// \return false if the user kept the features (then spacing, features and history entry are
    /// not
    ///         touched), otherwise true, also when nothing has changed.
    bool WriteAttributesToImage(CImage& image);

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    /// Converts the fields that hold numbers from the present unit to \a unit. Throws a std::string
    /// for a unit that is not in the table. Does not select the unit in comboUnit.
    virtual void onComboUnitTextChanged(const QString& unit);

    /// Makes \a unit the present one and shows it, without a conversion.
    void SetUnit(QString unit);

    void SetTextX(double v); ///< Shows \a v, in the present unit; stores nothing.
    void SetTextY(double v); ///< Shows \a v, in the present unit; stores nothing.
    void SetTextZ(double v); ///< The same, but only while the z field is enabled.

protected slots:
    /// Sets all texts anew through tr() and selects the unit "um".
    virtual void languageChange();

public:
    // The children, owned by this widget through the toolkit. Texts, not values: see invariant 1.
    qt3::GroupBox* groupBox1;
    qt3::Label* textLabel1;
    qt3::LineEdit* xSpacingLine;
    qt3::Label* textLabel1_3;
    qt3::LineEdit* ySpacingLine;
    qt3::Label* textLabel1_3_2;
    qt3::LineEdit* zSpacingLine;
    qt3::ComboBox* comboUnit;
    qt3::GroupBox* groupBox2;
    qt3::Label* textLabel2;
    qt3::LineEdit* creatorLine;
    qt3::Label* textLabel2_2;
    qt3::TextEdit* descriptionText;
    qt3::Label* textLabel2_2_2;
    qt3::TextEdit* historyText;

protected:
    qt3::VBoxLayout* CHeaderFieldsWidgetLayout;
    qt3::HBoxLayout* groupBox1Layout;
    qt3::VBoxLayout* groupBox2Layout;
    qt3::HBoxLayout* layout2;
    qt3::SpacerItem* spacer1;

private:
    void CreateSpacingGroup();
    void CreateDescriptionGroup();
    void CreateBottomRow();
    qt3::LineEdit* CreateSpacingLine(const char* name);
    void CheckUnits() const;
    void ShowSpacing(unsigned int dimension);
    bool MayChangeSpacing(CImage& image) const;

    int m_nUnitIndex =
        -1; ///< The unit of the spacing fields; -1 when comboUnit shows an unknown one.
    double m_dSpacingX = -1.0;  ///< In metres, as read or set last; -1 when unknown.
    double m_dSpacingY = -1.0;  ///< In metres, as read or set last; -1 when unknown.
    double m_dSpacingZ = -1.0;  ///< In metres, as read or set last; -1 when unknown.
    bool m_bHasSpacing = false; ///< The three are known.
};

} // namespace TEVU

#endif
