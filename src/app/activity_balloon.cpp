// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_balloon.h"

#include <QCoreApplication>

#include "session/text.h"
#include "ui/activity_type_text.h"
#include "ui/locale_text.h"

namespace app {

using hessiancln::running_activity_info;

namespace {

constexpr int mostLines = 10;

class Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
public:
    static QString started() { return tr("Started - "); }
    static QString completed() { return tr("Completed - "); }
    static QString more(int count) { return tr("and %1 more").arg(ui::numberText(count)); }
    static QString object(const QString& name) { return tr(" - %1").arg(name); }
};

QString objectOf(const running_activity_info& activity, const SetNames& nameOf) {
    if (activity.set_id > 0)
        if (const auto name = nameOf(activity.set_id))
            return Texts::object(*name);
    const QString description = session::fromWire(activity.description);
    return description.isEmpty() ? QString() : Texts::object(description);
}

QString lineOf(const QString& head, const running_activity_info& activity, const SetNames& nameOf) {
    return head + ui::activityTypeLabel(activity.type) + objectOf(activity, nameOf);
}

} // namespace

QString activityBalloonText(const QList<running_activity_info>& appeared,
                            const QList<running_activity_info>& disappeared,
                            const SetNames& nameOf) {
    QStringList lines;
    for (const auto& activity : appeared)
        lines << lineOf(Texts::started(), activity, nameOf);
    for (const auto& activity : disappeared)
        lines << lineOf(Texts::completed(), activity, nameOf);
    if (lines.size() > mostLines) {
        const int more = lines.size() - mostLines + 1;
        lines = lines.mid(0, mostLines - 1) << Texts::more(more);
    }
    QString text;
    for (const QString& line : lines)
        text += line + QLatin1Char('\n');
    return text;
}

} // namespace app
