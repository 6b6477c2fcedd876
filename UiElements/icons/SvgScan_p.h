#pragma once

#include <QByteArray>
#include <QString>

/// What can be said of an SVG document before Qt's parser sees it.
///
/// Icons come from themes, servers and other people's messages, while Qt's parser reads style sheets and images from
/// any path, follows `use` as deep as it goes and multiplies it without bound. A document that asks for such a thing is
/// refused here; what is left takes time and memory in proportion to its size.
struct SvgScan
{
    enum Verdict { Fine, Broken, Refused };

    Verdict verdict = Broken;
    QString reason; ///< of a refusal, in few words
    int rootChildren = 0; ///< nodes that Qt's parser makes directly below the root
};

namespace SvgLimits {
constexpr qint64 FileBytes = 4 * 1024 * 1024;
constexpr int Elements = 50000;
constexpr int AttributesOfElement = 256;
constexpr int Depth = 256; ///< also through `use`
constexpr qint64 ImagePixels = 16 * 1024 * 1024; ///< of all embedded images together
constexpr qint64 ImageTextBytes = 16 * 1024; ///< compressed, of one image
constexpr int ImageScans = 100; ///< of a progressive JPEG
constexpr double ClockShortest = 10; ///< milliseconds, of an animation that began before
constexpr double FontSize = 0.5; ///< of spans in text a hundred times larger
constexpr int GradientStops = 1000;
constexpr qint64 StyleMatches = 10000000; ///< up to 0.15 us each
constexpr qint64 StyleMoves = 1000000000; ///< characters moved by escapes

// With every `use` replaced by what it stands for.
constexpr qint64 WrittenOutBytes = 8 * 1024 * 1024;
constexpr qint64 WrittenOutText = 10000; ///< characters
constexpr qint64 DashMatches = 500000000; ///< characters of the longest dash pattern times elements

// Of what is painted.
constexpr double Coordinate = 1e6; ///< in document units
constexpr double StrokeWidth = 32768; ///< where QPen ends
constexpr double Dashes = 100000;
constexpr int DashPattern = 1000;
constexpr double Outlines = 15000; ///< total length, the drawing being 1 wide or high
constexpr double ImageOutline = 15; ///< the length that takes as long as one image
} // namespace SvgLimits

SvgScan scanSvg(const QByteArray &document);
