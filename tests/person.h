// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Quillory {

/// Does by taps and keys what a person does with what is in front: a pop-up, else a message or a
/// dialog, else the window or its topmost page. Steps are parted by "; ". The first that is not
/// possible within some seconds fails the test and ends them.
///
/// - `tap X`, `double-tap X`, `hold X`: the control of that object name, or whatever reads so: a
///   button, a label, an entry, a tab, the header of a column, a cell. "COLUMN of LINE" is a cell,
///   too.
/// - `fill X: TEXT` types over what a control holds.
/// - `choose X: TEXT` goes down a drop-down list by keys, until it shows the text.
/// - `type TEXT` and `press KEYS`, such as "Ctrl+F Down", go to what has the keyboard.
/// - `see TEXT` waits for a message ("…" stands for its rest), a menu (disabled entries in
/// brackets, ticked ones starred), or
///   the lines of a page: first cells, or all, parted by "|", where columns have no headers.
/// - `see X: TEXT` waits for the cells of a column, or for what a control holds.
/// - `hear TEXT` waits for what a screen reader is told: a notification, or the line of a list that
/// has the keyboard.
/// - `look X` takes the look of something; `same X` and `other X` wait for a like and an unlike
/// one, which is taken then, `ink COLOUR of X` for one in which that colour is seen.
/// - `on TEXT` waits for the selected line to be in sight, `at TEXT` for the title of the page.
/// "nothing" is none.
/// - `cannot X` waits for what reads so and is disabled.
/// - `beside STEP` is a step on the page beside the topmost; `size WxH` gives the window that size.
void Act(const QString& steps);

} // namespace Quillory
