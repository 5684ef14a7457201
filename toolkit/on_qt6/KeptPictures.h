#ifndef RUQGUI_TOOLKIT_KEPTPICTURES_H
#define RUQGUI_TOOLKIT_KEPTPICTURES_H

#include <qt3/StyleContext.h>

#include <qcache.h>
#include <qimage.h>
#include <qpalette.h>
#include <qrect.h>
#include <qstyle.h>

#include <array>
#include <vector>

class QPainter;

namespace qt3 {

/// What a style element looks like, but for its size and the painter.
struct StElementLook {
    const StyleContext& context;
    int nElement;
    QStyle::State nState;
    const QPalette& hPalette;
    bool bFrame; ///< Its line may reach into the pixels around it.
};

class ElementDrawing {
public:
    virtual ~ElementDrawing() = default;
    virtual void draw(QPainter* painter, const QRect& rect) const = 0;
};

/// The pixels of a picture that is being painted, as far as a rectangle covers them.
class Patch {
public:
    /// Not usable if they are not wholly within the picture, or if the painter does more to them than
    /// put them where they belong.
    Patch(const QPainter* painter, const QRect& rect);

    bool isUsable() const { return m_pFirst != nullptr; }
    bool isWholePicture() const { return m_bWholePicture; } ///< Then row follows row without a gap.
    QSize size() const { return m_hSize; }
    int density() const { return m_nDensity; }
    QRgb* row(int y) const { return m_pFirst + static_cast<qsizetype>(y) * m_nPerRow; }
    QImage copy() const;

private:
    QRgb* m_pFirst = nullptr;
    int m_nPerRow = 0;
    QSize m_hSize;
    int m_nDensity = 0;
    bool m_bWholePicture = false;
};

/// What drawing an element does to the pixels: some it covers, some it blends with, some it leaves.
class KeptPicture {
public:
    /// Draws on \a patch, and on the side on black and on white: that tells the three kinds apart.
    KeptPicture(const Patch& patch, const ElementDrawing& drawing, QPainter* painter,
                const QRect& rect);

    /// Does the same to \a patch, if those pixels that are blended with are the same as then.
    bool put(const Patch& patch) const;

    int bytes() const;

private:
    /// Pixels that follow each other in memory.
    struct StRun {
        int x;
        int y;
        int nLength;
        int nFirst; ///< Of m_covering.
    };

    struct StBlended {
        int x;
        int y;
        QRgb before;
        QRgb after;
    };

    void addCovering(int x, int y, QRgb pixel, bool continues);

    std::vector<StRun> m_runs;
    std::vector<QRgb> m_covering;
    std::vector<StBlended> m_blended;
};

/// All on which a picture depends: what must be the same for it to be used.
struct StPictureKey {
    const QMetaObject* pStyleClass;
    qint64 nPalette;
    int nGroup;
    int nElement;
    unsigned nState;
    int nDirection;
    int nFontDpi;
    QRgb nBrush;
    int nWidth;
    int nHeight;
    int nDensity;
    bool bWholePicture;
    std::array<QRgb, 4> corners; ///< Beneath; they tell the usual places of an element apart.
};

bool operator==(const StPictureKey& a, const StPictureKey& b);
size_t qHash(const StPictureKey& key, size_t seed);

/// Pictures of style elements: each is drawn once and then copied, as long as nothing changes on which
/// its look depends: style, palette, state, size, pixel density, and the pixels that it blends with.
/// So what comes out never differs from a fresh drawing, not even by the rounding of a blended corner.
///
/// That holds for styles known to draw an element from its option alone, wherever it stands: the two
/// that the toolkit brings along. With any other style each element is drawn anew.
///
/// GUI thread only.
class KeptPictures {
public:
    static const int c_nMostBytes = 4 << 20; ///< Beyond, what has not been used for longest goes.

    /// Does to the pixels in \a rect what \a drawing does, and leaves the painter as it was.
    /// \param look must say all on which the drawing depends
    void draw(const StElementLook& look, const ElementDrawing& drawing, QPainter* painter,
              const QRect& rect);

    int bytes() const { return static_cast<int>(m_kept.totalCost()); }

private:
    QCache<StPictureKey, KeptPicture> m_kept{c_nMostBytes};
};

} // namespace qt3

#endif
