// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "app/about_dlg.h"

#include <QEvent>

#include "base/product.h"
#include "session/process_values.h"
#include "ui/branding_resources.h"
#include "ui/table_columns.h"
#include "ui_about_dlg.h"

namespace {

constexpr int iconEdge = 64;

} // namespace

AboutDlg::AboutDlg(QWidget* parent)
    : QDialog(parent)
    , ui_(std::make_unique<Ui::AboutDlg>()) {
    ui_->setupUi(this);
    const QIcon icon = ui::g_branding.applicationIcon();
    setWindowIcon(icon);
    ui_->labelIcon->setPixmap(icon.pixmap(iconEdge));
    setTexts();
    connect(ui_->buttonClose, &QPushButton::clicked, this, &AboutDlg::accept);
    setUpInformation();
}

AboutDlg::~AboutDlg() = default;

void AboutDlg::setTexts() {
    const QString name = tr("%1").arg(QStringLiteral("Tarn-Mobile User"));
    setWindowTitle(name);
    ui_->labelName->setText(name);
    const QStringList lines{tr("Version %1").arg(QStringLiteral("14.2.0.0")),
                            tr("Release %1").arg(QLatin1String(product::version)),
                            QStringLiteral(TARN_COPYRIGHT)};
    ui_->labelVersion->setText(lines.join(QLatin1Char('\n')));
}

void AboutDlg::setUpInformation() {
    ui_->groupInfo->setVisible(session::connectedToAgent());
    ui::setUpTable(*ui_->tableInfo, model_);
    model_.refresh();
}

void AboutDlg::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        setTexts();
    }
    QDialog::changeEvent(event);
}
