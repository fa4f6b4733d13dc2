// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_balloon.h"

#include <QCoreApplication>

#include "session/text.h"
#include "ui/activity_type_text.h"

namespace app {

using hessiancln::running_activity_info;

namespace {

class Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
public:
    static QString started() { return tr("Started - "); }
    static QString completed() { return tr("Completed - "); }
    static QString object(const QString& name) { return tr(" - %1").arg(name); }
};

QString objectOf(const running_activity_info& activity, const SetNames& nameOf) {
    if (activity.set_id > 0)
        if (const auto name = nameOf(activity.set_id))
            return Texts::object(*name);
    const QString description = session::fromWire(activity.description);
    return description.isEmpty() ? QString() : Texts::object(description);
}

QString lines(const QString& head, const QList<running_activity_info>& activities,
              const SetNames& nameOf) {
    QString text;
    for (const auto& activity : activities)
        text += head + ui::activityTypeLabel(activity.type) + objectOf(activity, nameOf) +
                QLatin1Char('\n');
    return text;
}

} // namespace

QString activityBalloonText(const QList<running_activity_info>& appeared,
                            const QList<running_activity_info>& disappeared,
                            const SetNames& nameOf) {
    return lines(Texts::started(), appeared, nameOf) +
           lines(Texts::completed(), disappeared, nameOf);
}

} // namespace app
