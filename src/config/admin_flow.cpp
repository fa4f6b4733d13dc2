// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "config/admin_flow.h"

#include <QCoreApplication>
#include <QWizard>

#include "config/admin_config_page.h"
#include "ui/wizard_frame.h"

namespace config {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SimpleGUIMainWindow)
};

} // namespace

void editAdminTimes(QWidget& parent) {
    ui::Wizard wizard(&parent);
    ui::frameWizard(wizard, Texts::tr("Configuration Wizard"),
                    QStringLiteral(":/images/wizard_retention"));
    auto* page = new AdminConfigPage(&wizard);
    wizard.addPage(page);
    if (ui::runWizard(wizard))
        page->save();
}

} // namespace config
