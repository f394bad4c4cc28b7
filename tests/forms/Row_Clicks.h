// Clicks on the rows of lists that only the tests of the lists themselves need.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>

#include "tests/support/Drive.h"

inline QAbstractItemView& View_Of(std::string_view name) {
  return dynamic_cast<QAbstractItemView&>(Find(name));
}

/// Where a row is, in its window; a row that is not there: below the last one.
inline QPoint Place_Of_Row(std::string_view name, int row) {
  QAbstractItemView& view = View_Of(name);
  const QRect place = view.visualRect(view.model()->index(row, 0));
  const QPoint below(view.viewport()->width() / 2, view.viewport()->height() - 2);
  return view.viewport()->mapTo(view.window(), place.isValid() ? place.center() : below);
}

inline void Double_Click_Row(std::string_view name, int row,
                             Qt::MouseButton button = Qt::LeftButton,
                             Qt::KeyboardModifiers keys = {}) {
  QTest::mouseDClick(Find(name).window()->windowHandle(), button, keys, Place_Of_Row(name, row));
  Settle_Events();
}

/// Makes the list see that what is typed by `type` does not go on with what was typed before.
inline void Begin_Word(const std::function<void()>& type) {
  QElapsedTimer since;
  since.start();
  EXPECT_TRUE(Wait_Until([&] { return since.hasExpired(1); }));
  QApplication::setKeyboardInputInterval(0);
  type();
  QApplication::setKeyboardInputInterval(-1);
}

inline void Type_Anew(const char* word) {
  const QString letters = QString::fromUtf8(word);
  Begin_Word([&] { Type(letters.left(1).toStdString()); });
  Type(letters.mid(1).toStdString());
}

/// What an input method composed.
inline void Compose_Anew(std::string_view name, const char* word) {
  QInputMethodEvent composed;
  composed.setCommitString(QString::fromUtf8(word));
  Begin_Word([&] { QApplication::sendEvent(&Find(name), &composed); });
}

/// What the desktop sends while a key is held down.
inline void Hold_Down(std::string_view name, Qt::Key key) {
  QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
  QApplication::sendEvent(&Find(name), &again);
}

/// Presses the left button on one row and lets it go on another one.
inline void Drag_Row(std::string_view name, int from, int to) {
  QWindow* window = Find(name).window()->windowHandle();
  QTest::mousePress(window, Qt::LeftButton, {}, Place_Of_Row(name, from));
  QTest::mouseMove(window, Place_Of_Row(name, to));
  QTest::mouseRelease(window, Qt::LeftButton, {}, Place_Of_Row(name, to));
  Settle_Events();
}

/// The entry that a list shows as chosen; -1 if none.
inline int Chosen_Row(std::string_view name) {
  return View_Of(name).selectionModel()->selectedRows().value(0).row();
}
