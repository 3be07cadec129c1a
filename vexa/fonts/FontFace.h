#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <string>

#include "vexa/support/drawing/FontService.h"

struct hb_face_t;
struct hb_font_t;

namespace VEXA {

/// How the bytes of a font file come into memory.
enum class FileAccess {
    Map,  ///< page by page, as they are needed; for files that nobody writes to while they are in use
    Read  ///< a copy of the whole: a file that shrinks while it is mapped would end the program
};

/// Bytes of a font file: compiled in, or of the file system.
class FontData final : public Object {
public:
    /// Memory that lives as long as the program.
    explicit FontData(std::span<const std::byte> compiledIn) noexcept;
    /// Empty when the file cannot be read.
    static SmartPtr<FontData> open(const std::string& file, FileAccess access);
    ~FontData() override;

    std::span<const std::byte> bytes() const noexcept { return bytes_; }
    const std::string& file() const noexcept { return file_; }  ///< empty when compiled in

private:
    FontData(std::string file, std::span<const std::byte> mapped) noexcept;
    FontData(std::string file, std::string copy) noexcept;

    std::string file_;
    std::string copy_;
    std::span<const std::byte> bytes_;
    bool isMapped_ = false;
};

/// What a font was asked for and is found by.
struct FontStyleRequest {
    bool bold = false;
    bool italic = false;

    /// 0 to 3, for tables: regular, bold, italic, bold italic.
    constexpr unsigned ordinal() const noexcept { return (bold ? 1U : 0U) + (italic ? 2U : 0U); }

    friend bool operator==(const FontStyleRequest&, const FontStyleRequest&) = default;
};

/// One face of a font file, ready for shaping. Never changes; shared by threads.
class FontFace final : public Object {
public:
    /// `index` as fontconfig and FreeType count: the face in the lower 16 bits, the named instance above. Empty when
    /// the bytes hold no such face, or one without glyphs.
    static SmartPtr<FontFace> open(SmartPtr<FontData> data, unsigned index, std::string name);
    ~FontFace() override;

    const SmartPtr<FontData>& data() const noexcept { return data_; }
    unsigned index() const noexcept { return index_; }
    /// Family and style for people, "Noto Sans CJK JP Bold".
    const std::string& name() const noexcept { return name_; }
    /// Of the table `hhea`.
    const FontMetrics& metrics() const noexcept { return metrics_; }
    /// Whether its glyphs bring their own colours.
    bool isColored() const noexcept { return isColored_; }
    bool hasGlyph(char32_t character) const noexcept;
    /// Scaled to the face's units per em. Immutable.
    hb_font_t* shapingFont() const noexcept { return font_; }

    /// Something a surface made of the face, made once and kept as long as the face. `make` runs under a lock.
    std::shared_ptr<void> drawingFace(const std::function<std::shared_ptr<void>()>& make) const;

private:
    FontFace(SmartPtr<FontData> data, unsigned index, std::string name, hb_face_t& face);

    SmartPtr<FontData> data_;
    unsigned index_;
    std::string name_;
    FontMetrics metrics_;
    bool isColored_ = false;
    hb_font_t* font_ = nullptr;
    mutable std::mutex drawingMutex_;
    mutable std::shared_ptr<void> drawingFace_;
};

/// Liberation Sans, which is part of the program.
const SmartPtr<FontFace>& compiledFace(FontStyleRequest style);

}  // namespace VEXA
