#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "vexa/fonts/FontReport.h"
#include "vexa/fonts/SystemFontService.h"

/// What the tests of fonts share.
namespace VEXA::Testing {

/// A request for a font of 100 px.
Font fontOf(const char* families, FontStyleRequest style = {});

/// What shows a text, from the fonts of the machine.
FontReport reportOf(const String& text, const char* families = "sans-serif", FontStyleRequest style = {});
ShapedText shaped(const String& text, const char* families = "sans-serif", FontStyleRequest style = {});

/// "[segment] face; " of each run, in the order of the text.
std::string runsOf(const FontReport& report);
/// The face that a list of families resolves to.
std::string faceOf(const char* families, FontStyleRequest style = {});

/// The file of a face of the machine, which must be installed for the tests.
std::string fileOf(const char* family);
std::string bytesOf(const std::string& file);

/// An empty directory of that name, below the directory of the tests' output.
std::string freshDirectory(const std::string& name);
void writeFile(const std::string& file, std::string_view bytes);

inline constexpr FontStyleRequest kStyles[] = {{false, false}, {true, false}, {false, true}, {true, true}};

}  // namespace VEXA::Testing
