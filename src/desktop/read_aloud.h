// What a screen reader is told of widgets, besides what the toolkit tells by itself.
#pragma once

#include <QAbstractItemView>
#include <QAccessible>

#include <functional>

namespace wortlex {

/// Of a widget that the toolkit takes for mere filling, which readers pass over. Before anything else is told
/// of it.
void give_role(QWidget& widget, QAccessible::Role role);

/// Tab passes a figure by, but not while a reader is at work: what cannot be gone to is not read. To be
/// called when its own focus policy is set.
void let_reader_reach(QWidget& figure);

/// Called as a screen reader begins or ends its work; at once where one is at work.
void follow_reader(QObject& owner, std::function<void(bool is_at_work)> follow);

/// A list that gets the focus tells its current cell, too: the toolkit tells of the list alone. Its rows have
/// no parents.
void tell_current_cell(QAbstractItemView& list);

/// Each is an event that readers hear, and so told only where it is another one.
void tell_name(QWidget& widget, const QString& name);
void tell_description(QWidget& widget, const QString& description);

} // namespace wortlex
