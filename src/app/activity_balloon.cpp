// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/activity_balloon.h"

#include <span>
#include <vector>

#include <QCoreApplication>

#include "session/text.h"
#include "ui/activity_type_text.h"
#include "ui/locale_text.h"

namespace app {

using hessiancln::running_activity_info;

namespace {

constexpr std::size_t mostLines = 10;

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

struct Line {
    QString head;
    const running_activity_info& activity;
};

std::vector<Line> linesOf(const QList<running_activity_info>& appeared,
                          const QList<running_activity_info>& disappeared) {
    std::vector<Line> lines;
    for (const auto& activity : appeared)
        lines.push_back({Texts::started(), activity});
    for (const auto& activity : disappeared)
        lines.push_back({Texts::completed(), activity});
    return lines;
}

} // namespace

QString activityBalloonText(const QList<running_activity_info>& appeared,
                            const QList<running_activity_info>& disappeared,
                            const SetNames& nameOf) {
    const std::vector<Line> lines = linesOf(appeared, disappeared);
    const std::size_t shown = lines.size() > mostLines ? mostLines - 1 : lines.size();
    QString text;
    for (const Line& line : std::span(lines).first(shown))
        text += line.head + ui::activityTypeLabel(line.activity.type) +
                objectOf(line.activity, nameOf) + QLatin1Char('\n');
    if (shown < lines.size())
        text += Texts::more(static_cast<int>(lines.size() - shown)) + QLatin1Char('\n');
    return text;
}

} // namespace app
