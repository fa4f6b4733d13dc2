// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <boost/shared_ptr.hpp>

#include "api/generic_activity.h"
#include "api/remote_object.h"

namespace hessiancln {

/// A deletion of selected items, ready to start.
class DeleteActivityInitiator : public RemoteObject {
public:
    using RemoteObject::RemoteObject;

    boost::shared_ptr<GenericActivity> start();
};

} // namespace hessiancln
