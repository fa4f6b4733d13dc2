// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/running_activity_progress.h"

#include <algorithm>

#include <QCoreApplication>

#include "session/text.h"
#include "ui/size_text.h"

namespace app {

using hessiancln::running_activity_info;

namespace {

/// Bytes weigh more than files because they take up most of the time.
constexpr double weightOfSize = 0.8;
constexpr double weightOfFiles = 0.2;

QString filesText(std::int32_t files) {
    return QCoreApplication::translate("RunningActivitiesModel", "%L1 files").arg(files);
}

QString joined(const QString& files, const QString& size) {
    return files.isEmpty() || size.isEmpty() ? files + size : files + QStringLiteral(" / ") + size;
}

QString sizeText(std::int64_t bytes) {
    return ui::sizeToString(static_cast<double>(bytes));
}

bool hasMovedData(const running_activity_info& activity) {
    return activity.files_processed != 0 || activity.size_processed != 0;
}

/// No value while the remaining amount is unknown. The sum is in floating point, because an agent's
/// numbers may overflow an integer sum.
std::optional<double> part(double processed, double left) {
    if (left == 0)
        return std::nullopt;
    const double whole = processed + left;
    return whole == 0 ? 0.0 : std::clamp(processed / whole, 0.0, 1.0);
}

} // namespace

QString progressText(const running_activity_info& activity) {
    if (hasMovedData(activity))
        return joined(activity.files_processed != 0 ? filesText(activity.files_processed)
                                                    : QString(),
                      activity.size_processed != 0 ? sizeText(activity.size_processed) : QString());
    const QString status = session::fromWire(activity.status_msg);
    const QString left =
        joined(activity.files_left > 0 ? filesText(activity.files_left) : QString(),
               activity.size_left > 0 ? sizeText(activity.size_left) : QString());
    return left.isEmpty() ? status : status + QStringLiteral(" (") + left + QLatin1Char(')');
}

std::optional<double> progressOf(const running_activity_info& activity) {
    if (!hasMovedData(activity))
        return std::nullopt;
    const auto files = part(activity.files_processed, activity.files_left);
    const auto size =
        part(static_cast<double>(activity.size_processed), static_cast<double>(activity.size_left));
    if (files && size)
        return *size * weightOfSize + *files * weightOfFiles;
    return size ? size : files;
}

} // namespace app
