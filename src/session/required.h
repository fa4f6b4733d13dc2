// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>

#include <boost/shared_ptr.hpp>

#include <QCoreApplication>

#include "session/text.h"

namespace session {

/// An object of the agent that this program can't work without. Throws `std::runtime_error` if the
/// agent returned none.
template <class Proxy>
boost::shared_ptr<Proxy> required(boost::shared_ptr<Proxy> object) {
    if (!object)
        throw std::runtime_error(toWire(QCoreApplication::translate(
            "required", "The agent did not return the requested object.")));
    return object;
}

} // namespace session
