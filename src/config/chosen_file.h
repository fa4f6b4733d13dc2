// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

namespace config {

/// The first of the names that ends so, in whatever case; empty if none does.
QString firstFileEndingIn(QLatin1String ending, const QStringList& names);

} // namespace config
