#pragma once

#include <string>

namespace VEXA {

/// A shared library of the system that is loaded when something first needs it, so that a program that never does
/// starts without it. Stays loaded for good. Safe from several threads once made.
class DynamicLibrary {
public:
    /// `soname` as in "libcairo.so.2". Throws Exception 1007, which names the library, the reason and the Debian
    /// `package` that holds it.
    DynamicLibrary(const char* soname, const char* package);

    /// Whether it can be loaded, which this does.
    static bool isInstalled(const char* soname) noexcept;

    /// Address of a function; throws Exception 1008 when this version of the library lacks it.
    void* find(const char* function) const;

    template <class Function>
    void bind(Function*& function, const char* name) const {
        function = reinterpret_cast<Function*>(find(name));
    }

private:
    void* handle_;
    const char* soname_;
    const char* package_;
};

}  // namespace VEXA
