#pragma once

#include <string_view>

namespace VEXA::Cli {

/// Where the program talks to people.
class Console {
public:
    virtual ~Console() = default;
    virtual void write(std::string_view text) = 0;
    /// Whether someone watches, so that a line may change under their eyes.
    virtual bool isTerminal() const = 0;
};

/// The standard error stream.
class StandardError final : public Console {
public:
    void write(std::string_view text) override;
    bool isTerminal() const override;
};

}  // namespace VEXA::Cli
