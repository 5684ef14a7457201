#include "KeptPictures.h"

#include <qhash.h>
#include <qmetaobject.h>
#include <qpainter.h>

#include <cstring>
#include <memory>
#include <tuple>

namespace qt3 {

namespace {

const int c_nLeastSide = 2; // thinner ones are drawn into the pixels around them
const QRgb c_black = 0xff000000;
const QRgb c_white = 0xffffffff;

/// All that is done to a pixel is to draw it, where it stands.
bool isPlain(const QPainter* painter, int density) {
    const QTransform& transform = painter->deviceTransform();
    return transform.m11() == density && transform.m22() == density && transform.m12() == 0.0 &&
           transform.m21() == 0.0 && transform.dx() == 0.0 && transform.dy() == 0.0 &&
           transform.isAffine() && painter->opacity() == 1.0 && !painter->hasClipping() &&
           painter->compositionMode() == QPainter::CompositionMode_SourceOver &&
           painter->renderHints() == QPainter::TextAntialiasing &&
           painter->pen().style() == Qt::NoPen && painter->brush().style() == Qt::SolidPattern;
}

/// A pattern is drawn from where it stands.
bool isPlain(const QPalette& palette) {
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role != QPalette::NoRole &&
            palette.brush(static_cast<QPalette::ColorRole>(role)).style() != Qt::SolidPattern)
            return false;
    }
    return true;
}

/// Another class has another meta-object, so what is found by its key need not be asked again.
bool isKnown(const QStyle* style) {
    const QByteArrayView name = style->metaObject()->className();
    return name == "QFusionStyle" || name == "QWindowsStyle";
}

/// It would push out most of the others.
bool isTooLarge(const Patch& patch) {
    const qsizetype bytes = sizeof(QRgb) * patch.size().width() * patch.size().height();
    return bytes > KeptPictures::c_nMostBytes / 8;
}

StPictureKey keyOf(const StElementLook& look, const QPainter* painter, const Patch& patch) {
    const int right = patch.size().width() - 1;
    const QRgb* const top = patch.row(0);
    const QRgb* const bottom = patch.row(patch.size().height() - 1);
    return {look.context.pStyle->metaObject(),
            look.hPalette.cacheKey(),
            look.hPalette.currentColorGroup(),
            look.nElement,
            look.nState.toInt(),
            look.context.eDirection,
            look.context.nFontDpi,
            painter->brush().color().rgba(),
            patch.size().width(),
            patch.size().height(),
            patch.density(),
            patch.isWholePicture(),
            {top[0], top[right], bottom[0], bottom[right]}};
}

void drawOn(QPainter* painter, const QRect& rect, const ElementDrawing& drawing) {
    painter->save();
    drawing.draw(painter, rect);
    painter->restore();
}

/// The element alone, on pixels of one colour.
QImage drawnOn(QRgb color, const Patch& patch, const ElementDrawing& drawing,
               const QPainter* original) {
    QImage image(patch.size(), QImage::Format_RGB32);
    image.setDevicePixelRatio(patch.density());
    image.fill(color);
    QPainter painter(&image);
    painter.setPen(original->pen());
    painter.setBrush(original->brush());
    drawing.draw(&painter, QRect(QPoint(), patch.size() / patch.density()));
    return image;
}

const QRgb* rowOf(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

} // namespace

Patch::Patch(const QPainter* painter, const QRect& rect) {
    QPaintDevice* const device = painter->device();
    if (device->devType() != QInternal::Image)
        return;
    QImage* const picture = static_cast<QImage*>(device);
    const int density = static_cast<int>(picture->devicePixelRatio());
    if (density < 1 || picture->format() != QImage::Format_RGB32 || !isPlain(painter, density))
        return;
    const QRect all(0, 0, picture->width() / density, picture->height() / density);
    if (rect.width() < c_nLeastSide || rect.height() < c_nLeastSide || !all.contains(rect))
        return;
    m_nPerRow = static_cast<int>(picture->bytesPerLine() / sizeof(QRgb));
    const QPoint first = rect.topLeft() * density;
    m_pFirst =
        reinterpret_cast<QRgb*>(picture->bits()) + first.x() + qsizetype(first.y()) * m_nPerRow;
    m_hSize = rect.size() * density;
    m_nDensity = density;
    m_bWholePicture = m_hSize == picture->size() && m_nPerRow == m_hSize.width();
}

QImage Patch::copy() const {
    return QImage(reinterpret_cast<const uchar*>(m_pFirst), m_hSize.width(), m_hSize.height(),
                  qsizetype(sizeof(QRgb)) * m_nPerRow, QImage::Format_RGB32)
        .copy();
}

KeptPicture::KeptPicture(const Patch& patch, const ElementDrawing& drawing, QPainter* painter,
                         const QRect& rect) {
    const QImage onBlack = drawnOn(c_black, patch, drawing, painter);
    const QImage onWhite = drawnOn(c_white, patch, drawing, painter);
    const QImage before = patch.copy();
    drawOn(painter, rect, drawing);
    bool bWasCovered = false;
    for (int y = 0; y < before.height(); ++y) {
        const QRgb* const black = rowOf(onBlack, y);
        const QRgb* const white = rowOf(onWhite, y);
        const QRgb* const old = rowOf(before, y);
        const QRgb* const now = patch.row(y);
        bool bAfterCovered = bWasCovered && patch.isWholePicture();
        for (int x = 0; x < before.width(); ++x) {
            bWasCovered = black[x] == white[x] && now[x] == black[x];
            if (bWasCovered)
                addCovering(x, y, now[x], bAfterCovered);
            else if (black[x] != c_black || white[x] != c_white || now[x] != old[x])
                m_blended.push_back({x, y, old[x], now[x]});
            bAfterCovered = bWasCovered;
        }
    }
    m_runs.shrink_to_fit();
    m_covering.shrink_to_fit();
    m_blended.shrink_to_fit();
}

void KeptPicture::addCovering(int x, int y, QRgb pixel, bool continues) {
    if (!continues)
        m_runs.push_back({x, y, 0, static_cast<int>(m_covering.size())});
    ++m_runs.back().nLength;
    m_covering.push_back(pixel);
}

bool KeptPicture::put(const Patch& patch) const {
    for (const StBlended& pixel : m_blended) {
        if (patch.row(pixel.y)[pixel.x] != pixel.before)
            return false;
    }
    for (const StRun& run : m_runs)
        std::memcpy(patch.row(run.y) + run.x, &m_covering[run.nFirst], sizeof(QRgb) * run.nLength);
    for (const StBlended& pixel : m_blended)
        patch.row(pixel.y)[pixel.x] = pixel.after;
    return true;
}

int KeptPicture::bytes() const {
    return static_cast<int>(sizeof *this + sizeof(StRun) * m_runs.capacity() +
                            sizeof(QRgb) * m_covering.capacity() +
                            sizeof(StBlended) * m_blended.capacity());
}

bool operator==(const StPictureKey& a, const StPictureKey& b) {
    const auto all = [](const StPictureKey& key) {
        return std::tie(key.pStyleClass, key.nPalette, key.nGroup, key.nElement, key.nState,
                        key.nDirection, key.nFontDpi, key.nBrush, key.nWidth, key.nHeight,
                        key.nDensity, key.bWholePicture, key.corners);
    };
    return all(a) == all(b);
}

size_t qHash(const StPictureKey& key, size_t seed) {
    return qHashMulti(seed, key.nElement, key.nState, key.nWidth, key.corners[0], key.corners[3]);
}

void KeptPictures::draw(const StElementLook& look, const ElementDrawing& drawing, QPainter* painter,
                        const QRect& rect) {
    const Patch patch(painter, rect);
    const bool bProxied = look.context.pStyle->proxy() != look.context.pStyle;
    if (!patch.isUsable() || bProxied || (look.bFrame && !patch.isWholePicture()))
        return drawOn(painter, rect, drawing);
    const StPictureKey key = keyOf(look, painter, patch);
    const KeptPicture* const kept = m_kept.object(key);
    if (kept && kept->put(patch))
        return;
    if (!isKnown(look.context.pStyle) || !isPlain(look.hPalette) || isTooLarge(patch))
        return drawOn(painter, rect, drawing);
    auto picture = std::make_unique<KeptPicture>(patch, drawing, painter, rect);
    const int bytes = picture->bytes();
    m_kept.insert(key, picture.release(), bytes);
}

} // namespace qt3
