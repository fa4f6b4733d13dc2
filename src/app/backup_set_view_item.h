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

/// A card in the list of backup sets. A double click on its name opens an editor in the name's
/// place, unless the sets are managed centrally.
class BackupSetViewItem : public QWidget {
    Q_OBJECT
public:
    /// Gives a set a new name; raises what is derived from `std::exception` if that fails.
    using Rename = std::function<void(std::int32_t setId, const QString& name)>;
    static void renameOnAgent(std::int32_t setId, const QString& name);

    explicit BackupSetViewItem(QWidget* parent = nullptr, Rename rename = renameOnAgent);
    ~BackupSetViewItem() override;

    /// Shows a set. What looks as it did before isn't drawn anew.
    void setRecord(const hessiancln::backup_set_info& record);
    const hessiancln::backup_set_info& record() const { return record_; }

    void setSelected(bool selected);

    /// Opens the editor of the name, unless the sets are managed centrally.
    void startEditingSetName();
    /// Whether the name is being edited, or is just being sent to the agent.
    bool editingName() const { return editingName_; }

    /// Closes the editor and forgets what was typed, for a card that has to go.
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
    void showToolTip();
    void hideNameEditor();
    void sendName(const QString& name);
    QLineEdit& nameEditor();

    std::unique_ptr<Ui::BackupSetViewItem> ui_;
    Rename rename_;
    hessiancln::backup_set_info record_;
    app::SetCardLook look_;
    QLineEdit* nameEditor_ = nullptr; ///< made for the first rename; the card owns it
    bool editingName_ = false;
    bool sendingName_ = false;
    bool deleteOnceSent_ = false;
};
