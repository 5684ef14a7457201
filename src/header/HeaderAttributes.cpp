#include "CHeaderFieldsWidget.h"

#include "Spacing.h"
#include "UnitTable.h"

#include <qt3/Application.h>
#include <qt3/MessageBox.h>
#include <qt3/Text.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/COrunHeaderTools.h>

// The transfer between an image's header and the form.

namespace TEVU {

namespace {

using Getter = bool (*)(const IImage&, std::string&);
using Setter = void (*)(IImage&, const char*, unsigned int);

template <class Field>
void showText(Field* field, const IImage& image, Getter get) {
    std::string text;
    if (get(image, text))
        field->setText(qt3::fromAscii(text));
}

void write(const QString& text, IImage& image, Setter set) {
    const std::string bytes = qt3::ascii(text);
    set(image, bytes.data(), static_cast<unsigned int>(bytes.size()));
}

StSpacing spacingOf(const IImage& image) {
    StSpacing spacing = {1.0, 1.0, 1.0};
    if (!COrunHeaderTools::GetSpacing(image, spacing.dX, spacing.dY, spacing.dZ))
        spacing = {1.0, 1.0, 1.0};
    return spacing;
}

// What the field says in metres. A field that is no number counts as the stored spacing, which is
// in metres already but is multiplied all the same.
double metresIn(const QLineEdit* field, double factor, bool hasStored, double stored) {
    bool isNumber = false;
    const double value = qt3::toDouble(field->text(), &isNumber);
    if (isNumber)
        return value * factor;
    return hasStored ? factor * stored : factor;
}

bool hasFeatures(const IImage& image) {
    return image.Header().HasEntry(COrunHeaderTools::c_sTagFeatures, typeid(CValueMap));
}

bool userRemovesFeatures() {
    return qt3::MessageBox::warning(
               qt3::mainWidget(), "Remove computed features?",
               "The pixel spacing was changed, but the image contains features based on the old "
               "values.\n\nUpdate spacing and remove all features?",
               qt3::MessageBox::Yes, qt3::MessageBox::No) == qt3::MessageBox::Yes;
}

} // namespace

void CHeaderFieldsWidget::ReadAttributesFromImage(const CImage& image) {
    const unsigned int dimension = image.Size().Dimension();
    m_dSpacingX = m_dSpacingY = m_dSpacingZ = -1.0;
    m_bHasSpacing = COrunHeaderTools::GetSpacing(image, m_dSpacingX, m_dSpacingY, m_dSpacingZ);
    ShowSpacing(dimension);
    if (dimension == 2)
        zSpacingLine->setEnabled(false);

    showText(creatorLine, image, COrunHeaderTools::GetCreator);
    showText(historyText, image, COrunHeaderTools::GetHistory);
    showText(descriptionText, image, COrunHeaderTools::GetDescription);
}

// A one-dimensional image shows 0 m, whatever its spacing is.
void CHeaderFieldsWidget::ShowSpacing(unsigned int dimension) {
    int unit = c_nMetres;
    StSpacing shown = {0.0, 0.0, 0.0};
    if (m_bHasSpacing && (dimension == 2 || dimension == 3)) {
        unit = dimension == 3 ? naturalUnit(m_dSpacingX, m_dSpacingY, m_dSpacingZ)
                              : naturalUnit(m_dSpacingX, m_dSpacingY);
        shown = {m_dSpacingX / metresPer(unit), m_dSpacingY / metresPer(unit),
                 m_dSpacingZ / metresPer(unit)};
    }
    SetUnit(qt3::fromAscii(unitTable()[static_cast<std::size_t>(unit)].m_sName));
    if (!m_bHasSpacing)
        return;
    SetTextX(shown.dX);
    SetTextY(shown.dY);
    if (dimension == 3)
        SetTextZ(shown.dZ);
}

bool CHeaderFieldsWidget::WriteAttributesToImage(CImage& image) {
    const StSpacing before = spacingOf(image);
    const double factor = metresPer(unitIndex(qt3::ascii(comboUnit->currentText())));
    write(creatorLine->text(), image, COrunHeaderTools::SetCreator);
    write(creatorLine->text(), image, COrunHeaderTools::SetCreator); // kept: set twice
    write(historyText->text(), image, COrunHeaderTools::ReplaceHistory);
    write(descriptionText->text(), image, COrunHeaderTools::SetDescription);

    const unsigned int dimension = image.Size().Dimension();
    StSpacing after = {metresIn(xSpacingLine, factor, m_bHasSpacing, m_dSpacingX),
                       metresIn(ySpacingLine, factor, m_bHasSpacing, m_dSpacingY), 1.0};
    if (dimension > 2)
        after.dZ = metresIn(zSpacingLine, factor, m_bHasSpacing, m_dSpacingZ);

    // Kept: the stored z is compared with the new x. A stack whose z step differs from its x step
    // thus always counts as changed, and one where they are equal does not notice a new z.
    const bool changed = differ(m_dSpacingX, after.dX) || differ(m_dSpacingY, after.dY) ||
                         (zSpacingLine->isEnabled() && differ(m_dSpacingZ, after.dX));
    if (!changed)
        return true;
    if (hasFeatures(image)) {
        if (!userRemovesFeatures())
            return false;
        image.Header().RemoveEntry(COrunHeaderTools::c_sTagFeatures);
    }
    COrunHeaderTools::SetSpacing(image, after.dX, after.dY, after.dZ);
    COrunHeaderTools::AddToHistory(image,
                                   CValueString(spacingChangeEntry(before, after, dimension)));
    return true;
}

} // namespace TEVU
