// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <string>

/// Passwords, keys and codes, and the buffers that carry them: memory is wiped before it is freed.
namespace base {

/// Overwrites memory in a way that compilers don't optimise away.
void wipe(void* memory, std::size_t size) noexcept;

/// Overwrites the text and empties it.
void wipe(std::string& text) noexcept;

/// Wipes a text at the end of the block.
class WipedAtEnd {
public:
    explicit WipedAtEnd(std::string& text)
        : text_(text) {}
    WipedAtEnd(const WipedAtEnd&) = delete;
    WipedAtEnd& operator=(const WipedAtEnd&) = delete;
    ~WipedAtEnd() { wipe(text_); }

private:
    std::string& text_;
};

/// A text, or the bytes of a message, that wipes itself on destruction, replacement and move.
class Secret {
public:
    Secret() = default;
    /// Copies the text; the original stays with its owner.
    explicit Secret(const std::string& text)
        : text_(text) {}
    /// Takes over the text and wipes the source.
    explicit Secret(std::string&& text) noexcept { take(text); }
    Secret(const Secret& other) = default;
    Secret(Secret&& other) noexcept { take(other.text_); }
    Secret& operator=(Secret other) noexcept {
        wipe(text_);
        take(other.text_);
        return *this;
    }
    ~Secret() { wipe(text_); }

    const std::string& text() const { return text_; }
    bool empty() const { return text_.empty(); }
    bool operator==(const Secret& other) const = default;

private:
    /// A short text is copied by a move, so the source is wiped too.
    void take(std::string& source) noexcept {
        text_.swap(source);
        wipe(source);
    }

    std::string text_;
};

/// Wiping allocator for containers of libraries that handle secrets.
template <class T>
struct WipingAllocator {
    using value_type = T;

    WipingAllocator() = default;
    template <class Other>
    WipingAllocator(const WipingAllocator<Other>&) noexcept {
    } // NOLINT(google-explicit-constructor)

    T* allocate(std::size_t count) { return std::allocator<T>().allocate(count); }
    void deallocate(T* memory, std::size_t count) noexcept {
        wipe(memory, count * sizeof(T));
        std::allocator<T>().deallocate(memory, count);
    }
    template <class Other>
    bool operator==(const WipingAllocator<Other>&) const noexcept {
        return true;
    }
};

} // namespace base
