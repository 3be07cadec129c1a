#pragma once

#include <cstddef>
#include <unordered_map>
#include <utility>

namespace VEXA {

/// Remembers about as much as was used last. It has two halves: when the newer one is full it becomes the older one,
/// and what was in that is forgotten; what is found in the older one moves to the newer. Not safe from several threads.
template <class Key, class Value, class Hash = std::hash<Key>>
class BoundedCache {
public:
    /// Each half holds entries whose costs add up to no more than `capacity`.
    explicit BoundedCache(std::size_t capacity) : capacity_(capacity) {}

    /// Null when it is not known. Valid until the next call.
    const Value* find(const Key& key) {
        if (const auto found = newer_.find(key); found != newer_.end()) return &found->second.value;
        const auto found = older_.find(key);
        if (found == older_.end()) return nullptr;
        Entry entry = std::move(found->second);
        older_.erase(found);
        return &insert(key, std::move(entry));
    }

    /// Remembers a value; what costs more than the capacity is forgotten with the next one.
    void insert(const Key& key, Value value, std::size_t cost = 1) { insert(key, Entry{std::move(value), cost}); }

    std::size_t size() const noexcept { return newer_.size() + older_.size(); }

private:
    struct Entry {
        Value value;
        std::size_t cost;
    };
    using Half = std::unordered_map<Key, Entry, Hash>;

    const Value& insert(const Key& key, Entry entry) {
        if (cost_ + entry.cost > capacity_ && !newer_.empty()) {
            older_ = std::exchange(newer_, Half());
            cost_ = 0;
        }
        cost_ += entry.cost;
        return newer_.insert_or_assign(key, std::move(entry)).first->second.value;
    }

    std::size_t capacity_;
    std::size_t cost_ = 0;
    Half newer_;
    Half older_;
};

}  // namespace VEXA
