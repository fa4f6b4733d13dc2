// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

#include <QWidget>

#include "api/backup_set_records.h"
#include "app/set_card_look.h"

class QContextMenuEvent;
class QLineEdit;

namespace Ui {
class BackupSetViewItem;
}

/// A card in the list of backup sets. A double click on its name opens an editor in place of the
/// name, unless the sets are managed centrally.
class BackupSetViewItem : public QWidget {
    Q_OBJECT
public:
    /// Renames a set; throws an exception derived from `std::exception` on failure.
    using Rename = std::function<void(std::int32_t setId, const QString& name)>;
    static void renameOnAgent(std::int32_t setId, const QString& name);

    explicit BackupSetViewItem(QWidget* parent = nullptr, Rename rename = renameOnAgent);
    ~BackupSetViewItem() override;

    /// Shows a set. Redraws only what has changed.
    void setRecord(const hessiancln::backup_set_info& record);
    const hessiancln::backup_set_info& record() const { return record_; }

    void setSelected(bool selected);

    /// Opens the name editor, unless the sets are managed centrally.
    void startEditingSetName();
    /// Whether the name is being edited or sent to the agent.
    bool editingName() const { return editingName_; }

    /// Closes the editor and discards its text, for a card to be deleted.
    void abandonEditing();

    bool event(QEvent* event) override;

signals:
    void contextMenuNeedsDisplay(BackupSetViewItem* source, QContextMenuEvent* event);

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void endEditingSetName();

private:
    void render();
    void applyLook(const app::SetCardLook& look);
    void applyStyleSheet();
    void showToolTip();
    void hideNameEditor();
    void sendName(const QString& name);
    QLineEdit& nameEditor();

    std::unique_ptr<Ui::BackupSetViewItem> ui_;
    Rename rename_;
    hessiancln::backup_set_info record_;
    app::SetCardLook look_;
    QLineEdit* nameEditor_ = nullptr; ///< created for the first rename; owned by the card
    bool editingName_ = false;
    bool sendingName_ = false;
    bool deleteOnceSent_ = false;
};
