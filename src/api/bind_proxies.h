// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tuple>
#include <type_traits>

#include <boost/shared_ptr.hpp>

#include "hessian/kinds.h"
#include "hessian/record_layout.h"

namespace hessiancln {

class ICallDispatcher;

namespace detail {

template <class Visitor, class... F>
constexpr bool anyMember(const std::tuple<F...>& fields, Visitor visit) {
    return std::apply([&](const auto&... field) { return (visit(field.member) || ...); }, fields);
}

/// Decides at compile time whether a value of the kind can hold proxies.
template <class T>
constexpr bool holdsProxies() {
    if constexpr (hessianser::RemoteReference<T>)
        return true;
    else if constexpr (hessianser::List<T>)
        return holdsProxies<typename hessianser::detail::ListElement<T>::type>();
    else if constexpr (hessianser::Record<T>)
        return anyMember(T::fields(),
                         []<class M>(M T::*) { return holdsProxies<std::remove_cv_t<M>>(); });
    else
        return false;
}

} // namespace detail

/// Assigns `dispatcher` to every proxy in `value` that has none, at any depth of lists and records.
/// Null references are left alone.
template <hessianser::Value T>
void bindProxies(T& value, const boost::shared_ptr<ICallDispatcher>& dispatcher) {
    if constexpr (!detail::holdsProxies<T>()) {
        return;
    } else if constexpr (hessianser::RemoteReference<T>) {
        if (value && !value->getDispatcher())
            value->setDispatcher(dispatcher);
    } else if constexpr (hessianser::List<T>) {
        for (auto& element : value)
            bindProxies(element, dispatcher);
    } else {
        std::apply(
            [&](const auto&... field) { (bindProxies(value.*field.member, dispatcher), ...); },
            T::fields());
    }
}

} // namespace hessiancln
