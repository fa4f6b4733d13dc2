// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTreeView>

#include "tests/wizards/page_fixture.h"
#include "ui/screen_fit.h"
#include "wizards/items_select_page.h"
#include "wizards/select_data_source_page.h"

/// Access to the widgets of an items page, and to rows of its tree.
class ItemsPageWidgets {
public:
    explicit ItemsPageWidgets(ItemsSelectPage& page)
        : page_(page) {}

    ItemsSelectPage& page() { return page_; }
    ItemsSelectPage* operator->() { return &page_; }
    QCheckBox& box(const char* name) { return support::child<QCheckBox>(page_, name); }
    QRadioButton& radio(const char* name) { return support::child<QRadioButton>(page_, name); }
    QLineEdit& edit(const char* name) { return support::child<QLineEdit>(page_, name); }
    QWidget& widget(const char* name) { return support::child<QWidget>(page_, name); }
    QComboBox& presets() { return support::child<QComboBox>(page_, "comboSpecificLocations"); }
    QTreeView& tree() { return support::child<QTreeView>(page_, "treeComputer"); }

    /// The checked kinds: "All", and the first letters of Documents, Video, Pictures, Music, Email,
    /// custom, temporary, backup, and x for excluded.
    QString kinds() {
        QString text;
        for (const auto& [name, letter] : {std::pair{"checkEverything", "All "},
                                           {"checkDocuments", "D"},
                                           {"checkVideo", "V"},
                                           {"checkPictures", "P"},
                                           {"checkMusic", "M"},
                                           {"checkEmail", "E"},
                                           {"checkCustomInc", "c"},
                                           {"checkTempFiles", "t"},
                                           {"checkBakFiles", "b"},
                                           {"checkCustomExc", "x"}})
            if (box(name).isChecked())
                text += QString::fromLatin1(letter);
        return text;
    }

    /// The row of a folder, given by its names from the top down. Ends the test if it doesn't
    /// exist.
    QModelIndex folder(const QStringList& names) {
        QModelIndex index;
        for (const QString& name : names) {
            const QAbstractItemModel& model = *tree().model();
            int row = 0;
            while (row < model.rowCount(index) &&
                   model.index(row, 0, index).data().toString() != name)
                ++row;
            if (row == model.rowCount(index))
                qFatal("There is no folder %s", qPrintable(names.join(QLatin1Char('\\'))));
            index = model.index(row, 0, index);
        }
        return index;
    }
    /// 0 unchecked, 1 partly checked, 2 checked, 3 excluded.
    int state(const QStringList& names) { return folder(names).data(Qt::CheckStateRole).toInt(); }
    void check(const QStringList& names, bool checked = true) {
        tree().model()->setData(folder(names), checked, Qt::CheckStateRole);
    }

private:
    ItemsSelectPage& page_;
};

/// The page alone in a wizard, with the items of a set.
class PageOfSet : public ItemsPageWidgets {
public:
    explicit PageOfSet(const PageFixture::Set& set)
        : ItemsPageWidgets(*new ItemsSelectPage) {
        wizard_.addPage(&page());
        loaded = page().load(set);
        wizard_.show();
    }

    bool loaded = false;

private:
    QWizard wizard_; ///< owns the page
};

/// The page after a data source page, as in the wizard for a new set; already entered.
class PageOfSource : public ItemsPageWidgets {
public:
    PageOfSource()
        : ItemsPageWidgets(*new ItemsSelectPage) {
        page().setDataSourcePageId(wizard.addPage(&source));
        wizard.addPage(&page());
        ui::giveOneSize(wizard);
        wizard.show();
        wizard.next();
    }

    QWizard wizard; ///< owns both pages
    SelectDataSourcePage& source = *new SelectDataSourcePage;
};

/// Adds the items of the agent's sets to what all pages need.
class ItemsPageFixture : public PageFixture {
public:
    using Item = simulator::ItemState;

    static Item included(const std::string& folder) { return {Item::Kind::Inclusion, {}, folder}; }
    static Item excluded(const std::string& folder) { return {Item::Kind::Exclusion, {}, folder}; }
    static Item filter(const std::string& root, const std::string& expression, bool inclusion) {
        Item item{Item::Kind::Regex, {}, root};
        item.expression = expression;
        item.inclusion = inclusion;
        return item;
    }

    /// Gives the set these items, and opens it.
    Set openSetWith(std::vector<Item> items, int id = music) {
        change(id, [&](simulator::BackupSetState& set, simulator::World&) {
            for (Item& item : items)
                item.computer = set.source;
            set.items = std::move(items);
        });
        return openSet(id);
    }
    /// The items of the set: "+C:\Users", "-C:\Users\Public", and filters as ">C: expression" if
    /// they select and "<C: expression" if they reject.
    Calls itemsOf(int id) {
        Calls texts;
        change(id, [&](simulator::BackupSetState& set, simulator::World&) {
            for (const Item& item : set.items)
                texts.push_back(textOf(item));
        });
        return texts;
    }

private:
    static std::string textOf(const Item& item) {
        switch (item.kind) {
        case Item::Kind::Inclusion:
            return "+" + item.folder;
        case Item::Kind::Exclusion:
            return "-" + item.folder;
        case Item::Kind::Regex:
            break;
        }
        return (item.inclusion ? ">" : "<") + item.folder + " " + item.expression;
    }
};
