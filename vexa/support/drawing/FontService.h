#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "vexa/support/drawing/Font.h"

namespace VEXA {

/// In font units; ascent and descent are distances from the baseline, both positive.
struct FontMetrics {
    int unitsPerEm = 1000;
    int ascent = 0;
    int descent = 0;
};

/// A font that texts are measured with. Immutable, shared by threads.
class FontProgram : public Object {
public:
    virtual FontMetrics getMetrics() const noexcept = 0;
    /// Advance width of the text in font units, cut to the range of int.
    virtual int measureString(const String& text) const = 0;

protected:
    using Object::Object;
};

/// Finds the program for a font. Called from several threads at once.
class FontService {
public:
    virtual ~FontService() = default;
    virtual SmartPtr<FontProgram> getFont(const Font& font) = 0;
};

/// The one service through which texts are measured.
class FontManager {
public:
    /// The program for a font; empty when the installed service has none. Throws NullPointerException without a font.
    static SmartPtr<FontProgram> getFont(const SmartPtr<Font>& font);

    /// Installs a service for all renders that start afterwards; empty restores the default one. Returns the one
    /// before.
    static std::shared_ptr<FontService> setService(std::shared_ptr<FontService> service);

    /// Remembers, for this thread, characters of a measured or drawn text that no font has. A service calls it, also
    /// when it answers from a cache.
    static void noteMissing(std::u32string_view characters);
    /// The characters remembered since the last call, each once, in the order met; a picture's warning names them.
    static std::u32string takeMissing();
};

/// The service in force where none was installed: the shaping one of `vexa/fonts` where that is built in, else the
/// built-in table. Which of the two is settled when the library is built.
std::shared_ptr<FontService> defaultFontService();

/// The service that is always there: Liberation Sans' advance widths (those of Arial and Helvetica) in four styles for
/// Latin, Greek and Cyrillic text, the usual signs and symbols, and an average for every other character (1 em for East
/// Asian ones and emoji, nothing for marks that combine). A control character is as wide as the space it is drawn as.
/// Answers every family. Reads no file.
std::shared_ptr<FontService> builtInFontService();

/// Every character has the same width: 1000 units to the em, ascent 800, descent 200, each character `advance` units.
/// Layouts can be worked out by hand with it.
std::shared_ptr<FontService> fixedWidthFontService(int advance = 600);

}  // namespace VEXA
