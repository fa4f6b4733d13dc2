// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0

// A Qt plug-in. An unmodified client loads it when QT_QPA_GENERIC_PLUGINS names one of its stories
// and the folder for the pictures, as in "tarnstory:FOLDER". It plays one user from start to exit.
#include <memory>

#include <QGenericPlugin>

#include "tests/end_to_end/player.h"
#include "tests/end_to_end/stories.h"

namespace end_to_end {

class StoryPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "stories.json")
public:
    QObject* create(const QString& story, const QString& pictures) override {
        auto player = std::make_unique<Player>(pictures);
        if (story == QLatin1String("tarnticket"))
            playTicket(*player);
        else if (story == QLatin1String("tarnnoticket"))
            playNoTicket(*player);
        else if (story == QLatin1String("tarnlogon"))
            playLogon(*player);
        else if (story == QLatin1String("tarnlook"))
            playLook(*player);
        else if (story == QLatin1String("tarnstay"))
            playStay(*player);
        else if (story == QLatin1String("tarntray"))
            playTray(*player);
        else
            playWork(*player);
        player->play();
        return player.release();
    }
};

} // namespace end_to_end

#include "plugin.moc"
