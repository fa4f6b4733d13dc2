// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "hessian/kinds.h"

namespace simulator {

class Servant;

/// Maps objects to URLs and back.
class References {
public:
    virtual ~References() = default;

    /// A new URL for the object, which must not be null.
    virtual std::string handOut(const std::shared_ptr<Servant>& object) = 0;

    /// Throws `Violation` if there is no such object or it was released.
    virtual std::shared_ptr<Servant> resolve(const std::string& url) = 0;
};

/// A reference as a member of a record: a URL that was handed out; empty for null.
struct Handed {
    std::string url;
};

} // namespace simulator

template <>
struct hessianser::RemoteTraits<simulator::Handed> {
    static std::string typeName() { return "com.norvel.api.ClientConnection"; }
    static const std::string* url(const simulator::Handed& handed) {
        return handed.url.empty() ? nullptr : &handed.url;
    }
    static simulator::Handed fromUrl(std::string url) { return {std::move(url)}; }
};
