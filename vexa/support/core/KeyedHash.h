#pragma once

#include <cstddef>
#include <cstdint>

namespace VEXA {

/// A hash whose key is drawn once for each process, so that no document can hold names that are made to collide.
/// SipHash-1-3: Aumasson and Bernstein, "SipHash: a fast short-input PRF", INDOCRYPT 2012. Nothing that a picture shows
/// may depend on it.
std::uint64_t keyedHash(const void* bytes, std::size_t count) noexcept;
/// The same of the bytes of a number.
std::uint64_t keyedHash(std::uint64_t word) noexcept;

}  // namespace VEXA
