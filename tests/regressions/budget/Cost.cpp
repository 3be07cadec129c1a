#include "tests/regressions/budget/Cost.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace VEXA::Testing {
namespace {

constexpr double kBytesAtLeast = 64.0 * 1024 * 1024;
constexpr double kBytesOfElement = 600;
constexpr double kBytesOfCharacter = 40;
constexpr double kGrowthOfOutput = 3;
constexpr double kBytesOfPixel = 5;
constexpr double kBytesOfOperation = 1200;  // of a PDF's page, as are the next two
constexpr double kBytesOfCorner = 100;
constexpr double kBytesOfStop = 200;
constexpr double kSecondsOfMegabyte = 2;
constexpr double kSecondsOfDrawnMegabyte = 1;  // texts of a PNG or a PDF are shaped again
constexpr double kSecondsOfPixel = 1e-7;
constexpr double kSecondsOfPageByte = 20.0 / (1U << 30U);

/// What the process tells of its work.
struct Report {
    double output = 0;
    double fonts = 0;
    SizeF page;
};

double residentBytes() {
    double total = 0;
    double resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// Of the font files that this process has read.
double mappedFontBytes() {
    double bytes = 0;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        const std::string_view kinds[] = {".ttf", ".otf", ".ttc"};
        if (std::ranges::none_of(kinds, [&](std::string_view kind) { return line.ends_with(kind); })) continue;
        char* end = nullptr;
        const auto from = std::strtoull(line.c_str(), &end, 16);
        bytes += static_cast<double>(std::strtoull(end + 1, nullptr, 16) - from);
    }
    return bytes;
}

/// In the child.
[[noreturn]] void paintAndTell(const std::string& document, const Fuzz::SurfaceMaker& makeSurface, int told) {
    const Fuzz::Painting painting = Fuzz::paint(document, makeSurface);
    const Report report{static_cast<double>(painting.bytes.size()), mappedFontBytes(), painting.page};
    _exit(write(told, &report, sizeof report) == sizeof report ? 0 : 1);
}

/// Fills in what the painting takes.
Report measure(const std::string& document, const Fuzz::SurfaceMaker& makeSurface, Cost& cost) {
    const double before = residentBytes();
    int ends[2] = {};
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0) paintAndTell(document, makeSurface, ends[1]);
    close(ends[1]);
    Report report;
    const bool isTold = read(ends[0], &report, sizeof report) == ssize_t{sizeof report};
    close(ends[0]);
    rusage usage{};
    int status = 1;
    wait4(child, &status, 0, &usage);
    if (!isTold || status != 0) throw std::runtime_error("a painting ended early");
    cost.bytes = static_cast<double>(usage.ru_maxrss) * 1024 - before;
    for (const timeval& time : {usage.ru_utime, usage.ru_stime})
        cost.seconds += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    return report;
}

double countOf(std::string_view text, std::string_view part) {
    double count = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size())) ++count;
    return count;
}

/// Corners or glyphs of one line of a display list. Each point of a path has a blank in it.
double cornersOf(const std::string& line) {
    constexpr double kMostOfOtherShapes = 13;  // an ellipse
    if (line.starts_with("{\"op\":\"text\"")) return static_cast<double>(line.find("\",\"x\":"));
    const std::string_view path = "{\"op\":\"path\",\"d\":\"";
    if (!line.starts_with(path)) return kMostOfOtherShapes;
    return countOf(std::string_view(line).substr(0, line.find('"', path.size())), " ");
}

double pageBytesOf(const std::string& line) {
    const double operations = countOf(line, "\"fill\":") + countOf(line, "\"stroke\":");
    return operations * (kBytesOfOperation + kBytesOfCorner * cornersOf(line)) +
           kBytesOfStop * countOf(line, "\"offset\":");
}

double pageBytes(const std::string& document) {
    std::istringstream list(Fuzz::paint(document, &Fuzz::displayListSurface).bytes);
    double bytes = 0;
    for (std::string line; std::getline(list, line);) bytes += pageBytesOf(line);
    return bytes;
}

double pixelsOf(SizeF page) { return std::ceil(double{page.width}) * std::ceil(double{page.height}); }

}  // namespace

Cost costOf(const std::string& document, Picture picture, const Fuzz::SurfaceMaker& makeSurface) {
    Cost cost;
    const Report report = measure(document, makeSurface, cost);
    const auto size = static_cast<double>(document.size());
    const double elements = countOf(document, "<") - countOf(document, "</");
    const double pixels = picture == Picture::Png && report.output > 0 ? pixelsOf(report.page) : 0;
    const double page = picture == Picture::Pdf ? pageBytes(document) : 0;
    const double output = report.output * (picture == Picture::Vector ? 1 : kGrowthOfOutput);
    const double fonts = report.fonts * (picture == Picture::Pdf ? 2 : 1);
    cost.bytesAllowed = kBytesAtLeast + kBytesOfElement * elements + kBytesOfCharacter * size + output +
                        kBytesOfPixel * pixels + page + fonts;
    const double drawing = picture == Picture::Vector ? 0 : kSecondsOfDrawnMegabyte;
    cost.secondsAllowed = (kSecondsOfMegabyte + drawing) * std::max(1.0, std::ceil(size / 1e6)) +
                          kSecondsOfPixel * pixels + kSecondsOfPageByte * page;
    return cost;
}

}  // namespace VEXA::Testing
