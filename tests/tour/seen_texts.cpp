// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "tests/tour/seen_texts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStatusBar>
#include <QTabBar>
#include <QTableView>
#include <QTextDocumentFragment>
#include <QTreeView>
#include <QWizardPage>

namespace tour {

namespace {

class Collector {
public:
    void addAllOf(const QWidget& widget) {
        if (widget.isWindow())
            add(widget, widget.windowTitle());
        for (const QString& text : {widget.toolTip(), widget.statusTip(), widget.whatsThis(),
                                    widget.accessibleName(), widget.accessibleDescription()})
            add(widget, text);
        addOwnText(widget);
        for (const QAction* action : widget.actions())
            if (action->isVisible() && !action->isSeparator())
                for (const QString& text : {action->text(), action->toolTip()})
                    add(*action, text);
    }

    QList<SeenText> texts;

private:
    void add(const QObject& owner, const QString& text, bool isOfRow = false) {
        if (text.isEmpty())
            return;
        const QString name = owner.objectName().isEmpty()
                                 ? QString::fromLatin1(owner.metaObject()->className())
                                 : owner.objectName();
        const bool rich = Qt::mightBeRichText(text);
        texts << SeenText{name, rich ? QTextDocumentFragment::fromHtml(text).toPlainText() : text,
                          isOfRow};
    }

    void addOwnText(const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget))
            add(widget, label->text());
        else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
            add(widget, button->text());
        else if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
            add(widget, group->title());
        else if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
            add(widget, field->placeholderText());
        else if (const auto* status = qobject_cast<const QStatusBar*>(&widget))
            add(widget, status->currentMessage());
        else if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
            for (int entry = 0; entry < combo->count(); ++entry)
                add(widget, combo->itemText(entry));
        else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
            for (int tab = 0; tab < tabs->count(); ++tab)
                add(widget, tabs->tabText(tab));
        else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
            addRows(*view);
    }

    void addRows(const QAbstractItemView& view) {
        if (!view.model())
            return;
        if (const auto* header = qobject_cast<const QHeaderView*>(&view)) {
            for (int section = 0; section < header->count(); ++section)
                if (!header->isSectionHidden(section))
                    add(view, view.model()->headerData(section, header->orientation()).toString());
            return;
        }
        for (int row = 0; row < view.model()->rowCount(view.rootIndex()); ++row)
            for (int column = 0; column < view.model()->columnCount(view.rootIndex()); ++column) {
                const QModelIndex index = view.model()->index(row, column, view.rootIndex());
                add(view, index.data(Qt::DisplayRole).toString(), true);
                add(view, index.data(Qt::ToolTipRole).toString(), true);
            }
    }
};

} // namespace

QList<SeenText> seenTexts(const QWidget& shown) {
    Collector collector;
    collector.addAllOf(shown);
    for (const auto* widget : shown.findChildren<QWidget*>())
        if (widget->isVisibleTo(&shown))
            collector.addAllOf(*widget);
    return collector.texts;
}

} // namespace tour
