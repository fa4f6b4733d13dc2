// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include <boost/asio/buffer.hpp>
#include <boost/beast/core/buffers_range.hpp>
#include <boost/beast/http/error.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/optional/optional.hpp>

#include "base/secret.h"

namespace hessiancln {

/// A body of Boost.Beast for a message that may hold a key: a plain string that can be moved out,
/// and is wiped wherever it leaves memory behind.
struct WipedBody {
    struct value_type {
        std::string text;

        value_type() = default;
        value_type(const value_type&) = delete;
        value_type& operator=(const value_type&) = delete;
        ~value_type() { base::wipe(text); }

        void append(const void* bytes, std::size_t size) {
            if (text.capacity() - text.size() < size)
                grow(std::max(text.size() + size, 2 * text.capacity()));
            text.append(static_cast<const char*>(bytes), size);
        }
        /// Unlike `reserve` of the text, wipes what it replaces.
        void grow(std::size_t capacity) {
            std::string larger;
            larger.reserve(capacity);
            larger = text;
            text.swap(larger);
            base::wipe(larger);
        }
    };

    class reader {
    public:
        template <bool isRequest, class Fields>
        reader(boost::beast::http::header<isRequest, Fields>&, value_type& body)
            : body_(body) {}

        /// The parser has checked the length.
        void init(const boost::optional<std::uint64_t>& length, boost::beast::error_code& error) {
            if (length)
                body_.grow(static_cast<std::size_t>(*length));
            error = {};
        }
        template <class Buffers>
        std::size_t put(const Buffers& buffers, boost::beast::error_code& error) {
            for (const auto& buffer : boost::beast::buffers_range_ref(buffers))
                body_.append(buffer.data(), buffer.size());
            error = {};
            return boost::asio::buffer_size(buffers);
        }
        void finish(boost::beast::error_code& error) { error = {}; }

    private:
        value_type& body_;
    };
};

} // namespace hessiancln
