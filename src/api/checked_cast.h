// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "api/remote_object.h"

namespace hessiancln {

namespace detail {

/// The name of a class in the object's `types`.
template <ProxyClass P>
constexpr std::string_view plainName() {
    if constexpr (requires { P::className; })
        return P::className;
    else
        return P::family;
}

} // namespace detail

/// A second proxy, of the narrower class, for the object behind `source`, which is left unchanged.
/// Both represent the same reference and share its release. Asks the agent, so it costs one round
/// trip and throws what a remote method throws; throws `invoke_exception` if the object isn't of
/// that class. `source` must not be null.
template <class Derived, class Base>
boost::shared_ptr<Derived> checkedCast(const boost::shared_ptr<Base>& source) {
    static_assert(std::derived_from<Derived, Base> && ProxyClass<Base>);
    static_assert(detail::plainName<Derived>() != detail::plainName<Base>(),
                  "the narrower class has no className of its own");
    source->requireType(detail::plainName<Base>(), detail::plainName<Derived>());
    auto narrower = boost::make_shared<Derived>(source->url(), false, 0u, std::string());
    narrower->shareObjectOf(*source);
    return narrower;
}

} // namespace hessiancln
