// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
#include <utility>

#include <gssapi/gssapi.h>

/// RAII wrappers for GSSAPI resources (RFC 2744).
namespace platform::gss {

/// A GSSAPI handle, possibly empty.
template <class Handle, OM_uint32 (*giveBack)(OM_uint32*, Handle*)>
class Owned {
public:
    Owned() = default;
    explicit Owned(Handle handle)
        : handle_(handle) {}
    Owned(Owned&& other) noexcept
        : handle_(other.take()) {}
    Owned& operator=(Owned&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~Owned() {
        OM_uint32 minor = 0;
        if (handle_)
            giveBack(&minor, &handle_);
    }

    Handle get() const { return handle_; }
    Handle take() { return std::exchange(handle_, nullptr); }
    /// Output parameter of a GSSAPI operation that sets or replaces the handle.
    Handle* place() { return &handle_; }

private:
    Handle handle_ = nullptr;
};

inline OM_uint32 deleteContext(OM_uint32* minor, gss_ctx_id_t* context) {
    return gss_delete_sec_context(minor, context, GSS_C_NO_BUFFER);
}

using Name = Owned<gss_name_t, gss_release_name>;
using Credentials = Owned<gss_cred_id_t, gss_release_cred>;
using Context = Owned<gss_ctx_id_t, deleteContext>;

/// Bytes allocated by GSSAPI.
class Buffer {
public:
    Buffer() = default;
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;
    ~Buffer() {
        OM_uint32 minor = 0;
        gss_release_buffer(&minor, &buffer_);
    }

    gss_buffer_t place() { return &buffer_; }
    std::span<const std::uint8_t> bytes() const {
        return {static_cast<const std::uint8_t*>(buffer_.value), buffer_.length};
    }

private:
    gss_buffer_desc buffer_ = GSS_C_EMPTY_BUFFER;
};

} // namespace platform::gss
