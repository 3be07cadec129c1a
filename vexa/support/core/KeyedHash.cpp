#include "vexa/support/core/KeyedHash.h"

#include <bit>
#include <chrono>
#include <cstring>
#include <exception>
#include <random>

namespace VEXA {

namespace {

struct HashKey {
    std::uint64_t words[2];
};

/// A machine without a source of random numbers still gives its time, and where it put this function.
HashKey drawKey() noexcept {
    try {
        std::random_device device;
        const auto word = [&] { return static_cast<std::uint64_t>(device()) << 32U | device(); };
        return {{word(), word()}};
    } catch (const std::exception&) {
        const auto time = std::chrono::high_resolution_clock::now().time_since_epoch().count();
        return {{static_cast<std::uint64_t>(time), reinterpret_cast<std::uintptr_t>(&drawKey)}};
    }
}

const HashKey& processKey() noexcept {
    static const HashKey key = drawKey();
    return key;
}

class SipState {
public:
    explicit SipState(const HashKey& key) noexcept
        : v0_(key.words[0] ^ 0x736F6D6570736575U),
          v1_(key.words[1] ^ 0x646F72616E646F6DU),
          v2_(key.words[0] ^ 0x6C7967656E657261U),
          v3_(key.words[1] ^ 0x7465646279746573U) {}

    void add(std::uint64_t word) noexcept {
        v3_ ^= word;
        mix();
        v0_ ^= word;
    }

    std::uint64_t finish() noexcept {
        v2_ ^= 0xFFU;
        for (int round = 0; round < 3; ++round) mix();
        return v0_ ^ v1_ ^ v2_ ^ v3_;
    }

private:
    void mix() noexcept {
        v0_ += v1_;
        v2_ += v3_;
        v1_ = std::rotl(v1_, 13) ^ v0_;
        v3_ = std::rotl(v3_, 16) ^ v2_;
        v0_ = std::rotl(v0_, 32) + v3_;
        v2_ += v1_;
        v3_ = std::rotl(v3_, 21) ^ v0_;
        v1_ = std::rotl(v1_, 17) ^ v2_;
        v2_ = std::rotl(v2_, 32);
    }

    std::uint64_t v0_, v1_, v2_, v3_;
};

}  // namespace

std::uint64_t keyedHash(const void* bytes, std::size_t count) noexcept {
    SipState state(processKey());
    const auto* const text = static_cast<const unsigned char*>(bytes);
    std::uint64_t word = 0;
    std::size_t at = 0;
    for (; at + sizeof(word) <= count; at += sizeof(word)) {
        std::memcpy(&word, text + at, sizeof(word));
        state.add(word);
    }
    word = static_cast<std::uint64_t>(count) << 56U;
    for (unsigned shift = 0; at < count; ++at, shift += 8) word |= static_cast<std::uint64_t>(text[at]) << shift;
    state.add(word);
    return state.finish();
}

std::uint64_t keyedHash(std::uint64_t word) noexcept {
    SipState state(processKey());
    state.add(word);
    return state.finish();
}

}  // namespace VEXA
