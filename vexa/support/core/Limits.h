#pragma once

#include <cstddef>
#include <cstdint>

/// Every limit of the library, with the attack that it stops and the test that reaches it.
namespace VEXA::Limits {

/// Open elements. A document of opening tags alone would grow the parser's stack without end. Test: Limits.OfDocuments
inline constexpr std::size_t kNestingDepth = 256;
/// Attributes of one element, namespace declarations counted; each is looked up and checked. Test: Limits.OfDocuments
inline constexpr std::size_t kAttributes = 4096;
/// Elements of a document; each costs some hundred bytes. Test: Limits.OfDocuments
inline constexpr std::size_t kElements = 5'000'000;
/// Bytes of one tag or one attribute value; the tokeniser keeps an unfinished tag in memory. Test: Limits.OfDocuments
inline constexpr std::size_t kTagBytes = 10'000'000;
/// Warnings told of one document; a million unknown attributes would flood the log. Test: Limits.Warnings
inline constexpr std::size_t kWarnings = 100;
/// Errors, warnings and hints, each, that a check tells of one document; the others are counted. Test: Limits.Problems
inline constexpr std::size_t kCheckedProblems = 1000;
/// Known names that one unknown name is compared with: a document of a million axes and points could ask for 1e12
/// comparisons. Test: Limits.NearestNames
inline constexpr std::size_t kNearestNames = 1000;
/// Characters of the document quoted in one message. Test: Limits.Quotes
inline constexpr std::size_t kQuotedCharacters = 80;
/// Rings of a web. A step of 1e-6 over 1e6 would ask for 1e12 of them. Test: Limits.WebRings
inline constexpr std::size_t kWebRings = 10'000;
/// Corners of all rings of one web; ten thousand rings of a hundred thousand axes would be 1e9. Test: Limits.WebCorners
inline constexpr std::size_t kWebCorners = 1'000'000;
/// Corners of all rings and series of a picture. 16,000 axes with 10,000 series, half a megabyte, would write 160
/// million of them. Generated values of axes count, too, and the texts of labels: a thousand plots with 100,000 values
/// each would be 1e8 labels. Tests: Limits.PictureCorners, Limits.PictureAxisValues, Limits.LabelTexts
inline constexpr std::size_t kPictureCorners = 3'000'000;
/// Lines of a caption: a width of 0.001 px would break a long text into millions. Test: Limits.CaptionLines
inline constexpr std::size_t kCaptionLines = 10'000;
/// Characters of a number pattern, and of a separator or a sign in it: 100,000 labels could each repeat a pattern of a
/// megabyte. Tests: Limits.NumberPattern, Limits.NumberSeparator
inline constexpr std::size_t kNumberPattern = 1000;
inline constexpr std::size_t kNumberSeparator = 10;
/// Characters of a date pattern, and so copies of a letter in it, each of which is a digit: 100,000 labels could each
/// repeat a pattern of a megabyte. Test: Limits.DatePattern
inline constexpr std::size_t kDatePattern = 1000;
/// Generated values on one axis. A step of 1e-6 over 1e6 would ask for 1e12 labels. Test: Limits.AxisValues
inline constexpr std::size_t kAxisValues = 100'000;
/// Stops of a gradient. A display list tells them with every shape: 20,000 stops on 10,000 rings would be gigabytes.
/// Test: Limits.GradientStops
inline constexpr std::size_t kGradientStops = 256;
/// Entries of a dash pattern, written with every shape as well. Test: Limits.DashEntries
inline constexpr std::size_t kDashEntries = 100;
/// Characters of a requested font family; every text of a picture could repeat a list of a megabyte.
/// Test: Limits.FontFamily
inline constexpr std::size_t kFontFamily = 1000;
/// Characters that are shaped as one letter with its marks. HarfBuzz takes time in proportion to the square of the
/// marks: a megabyte of them on one letter would be an hour. Test: LongTexts.AreMeasuredAsTheyAreShaped
inline constexpr std::size_t kClusterCharacters = 32;
/// Largest coordinate that is written, in px; raster libraries count in fixed point. Test: Format.WritesHundredths
inline constexpr float kCoordinate = 1e9F;
/// Largest font size, in px. Test: Limits.FontSize
inline constexpr float kFontSize = 10'000.0F;
/// Largest coordinate on a page of pixels or points: cairo counts in 1/256 within 32 bits, and a line's width and its
/// sharp corners come on top. Test: CairoSurface.HostileNumbers
inline constexpr double kRasterCoordinate = 2e6;
/// Pixels of a side of a picture, and bytes of all. A chart of 100,000 px at a scale of 10 would ask for 4 TB.
/// Test: PageLimits.AreToldBeforeAnythingIsAllocated
inline constexpr int kRasterSide = 32'767;
inline constexpr double kRasterBytes = 1'073'741'824;
/// Pixels that the shapes of a PNG lie over, about a minute; those of a gradient or a text count eight times. 45,000
/// gradients of a document of a megabyte, each over all of the largest picture, would take nine hours.
/// Test: PngLimits.ShapesOverShapes
inline constexpr double kPaintedPixels = 100'000'000'000.0;
/// Largest side of a page of a PDF, in px: 200 inches, beyond which viewers refuse it.
/// Test: PageLimits.AreToldBeforeAnythingIsAllocated
inline constexpr float kPdfSide = 19'200.0F;
/// Bytes that a page of a PDF takes until it ends, see PageRecord. A million grid lines of a document of 9 KB take one
/// such GiB, a million bars in 3-D would take eight. Test: PdfLimits.APageThatIsTooFull
inline constexpr double kPdfBytes = 1'073'741'824;
/// Dashes of one outline, and of all of a page; each is a shape for cairo, and a pattern of 1e-6 px over 1000 px would
/// be 1e9 of them. Longer patterns take their place. Test: Limits.Dashes
inline constexpr double kDashes = 100'000;
inline constexpr double kPageDashes = 1'000'000;

}  // namespace VEXA::Limits
