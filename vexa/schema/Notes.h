#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VEXA {

/// What people are told about an element, about the elements of a base class, or about a type of values.
struct NoteSection {
    std::string_view name;     ///< of an element, of a C++ class, or of the type
    std::string_view heading;  ///< the name, or what people call the class
    std::string text;
    std::string example;                                              ///< lines of XML; may be empty
    std::vector<std::pair<std::string_view, std::string_view>> rows;  ///< attributes, or values, and what they mean

    /// Empty when the section says nothing of that attribute.
    std::string_view noteOf(std::string_view attribute) const noexcept;
};

struct NoteChapter {
    std::string_view title;
    std::vector<NoteSection> sections;
};

/// The source of all notes, in the form that NoteTexts.cpp tells.
extern const char kNoteTexts[];

/// The chapters of `text`, which must outlive them.
std::vector<NoteChapter> readNotes(std::string_view text);

/// The section of that name; null when there is none.
const NoteSection* findSection(const std::vector<NoteChapter>& chapters, std::string_view name) noexcept;

}  // namespace VEXA
