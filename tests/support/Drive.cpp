#include "tests/support/Drive.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <stdexcept>

#include "platform/forms/Forms.h"
#include "platform/run_time/Guard.h"

namespace {

QString To_Qt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Without_Mnemonic(QString text) {
  static const QRegularExpression behind(" ?\\(&.\\)$");
  return text.remove(behind).replace("&&", QChar(1)).remove('&').replace(QChar(1), "&");
}

bool Is_In(const QWidget* widget, const QString& form) {
  return form.isEmpty() || widget->window()->objectName() == form;
}

QWidget* Search(std::string_view name) {
  const QStringList parts = To_Qt(name).split('/');
  const QString form = parts.size() > 1 ? parts.front() : QString();
  QWidget* hidden = nullptr;
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() != parts.back() || !Is_In(widget, form)) continue;
    if (widget->isVisible()) return widget;
    hidden = widget;
  }
  return hidden;
}

QAction* Search_Action(std::string_view name) {
  QAction* hidden = nullptr;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    for (QAction* action : window->findChildren<QAction*>(To_Qt(name))) {
      if (window->isVisible()) return action;
      hidden = action;
    }
  }
  return hidden;
}

[[noreturn]] void No_Such(std::string_view name) {
  ADD_FAILURE() << "there is nothing named " << name;
  throw std::runtime_error("no control " + std::string(name));
}

QAction& Find_Action(std::string_view name) {
  QAction* action = Search_Action(name);
  if (action == nullptr) No_Such(name);
  return *action;
}

// Through the window, as from the desktop: what is disabled, covered or waiting gets nothing.
void Click_At(QWidget& widget, QPoint place, Qt::KeyboardModifiers keys = Qt::NoModifier) {
  QWidget* window = widget.window();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, keys, widget.mapTo(window, place));
  Settle_Events();
}

// The offscreen desktop gives the keys to no window when Esc closes a menu.
QWindow* Window_With_Keys() {
  if (const QWidget* popup = QApplication::activePopupWidget()) return popup->windowHandle();
  if (QWindow* window = QApplication::focusWindow()) return window;
  const QWidget* active = QApplication::activeWindow();
  return active == nullptr ? nullptr : active->windowHandle();
}

// A key whose press has not come to its end yet: it may have brought up a box, which takes the
// next.
std::optional<QKeyCombination> key_down;

void Let_Go() {
  const std::optional<QKeyCombination> key = std::exchange(key_down, std::nullopt);
  QWindow* window = Window_With_Keys();
  if (key && window != nullptr) QTest::keyRelease(window, key->key(), key->keyboardModifiers());
}

QAbstractItemView& Find_List(std::string_view name) {
  auto* view = dynamic_cast<QAbstractItemView*>(&Find(name));
  if (view == nullptr) No_Such(name);
  return *view;
}

QRect Row_Place(QAbstractItemView& view, int row) {
  const QModelIndex index = view.model()->index(row, 0);
  view.scrollTo(index);
  return view.visualRect(index).intersected(view.viewport()->rect());
}

// The menus that lead to an action, outermost first.
std::vector<QAction*> Way_To(QAction* action) {
  std::vector<QAction*> way{action};
  for (QObject* above = action->parent(); above != nullptr;) {
    auto* menu = qobject_cast<QMenu*>(above);
    if (menu == nullptr) break;
    if (menu->menuAction() != way.front()) way.insert(way.begin(), menu->menuAction());
    above = menu->parent();
  }
  return way;
}

QWidget* Bar_Or_Menu_Of(const QAction* action) {
  for (QObject* object : action->associatedObjects()) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (qobject_cast<QMenu*>(widget) != nullptr || qobject_cast<QMenuBar*>(widget) != nullptr) {
      return widget;
    }
  }
  return nullptr;
}

QRect Place_Of(const QWidget* bar_or_menu, QAction* action) {
  if (const auto* menu = qobject_cast<const QMenu*>(bar_or_menu))
    return menu->actionGeometry(action);
  return qobject_cast<const QMenuBar*>(bar_or_menu)->actionGeometry(action);
}

void Empty(std::string_view name) {
  Click(name);
  Press("Ctrl+A");
  Press("Delete");
}

template <class Kind>
Kind& Control(std::string_view name) {
  const QWidget& widget = Find(name);
  return Forms::Screen(widget.window()->objectName().toStdString())
      .Get<Kind>(widget.objectName().toStdString());
}

}  // namespace

QWidget& Find(std::string_view name) {
  QWidget* widget = Search(name);
  if (widget == nullptr) No_Such(name);
  return *widget;
}

bool Is_There(std::string_view name) {
  return Search(name) != nullptr || Search_Action(name) != nullptr;
}

bool Is_Seen(std::string_view name) {
  if (const QAction* action = Search_Action(name)) return action->isVisible();
  const QWidget* widget = Search(name);
  return widget != nullptr && widget->isVisible();
}

bool Is_Usable(std::string_view name) {
  if (const QAction* action = Search_Action(name))
    return action->isVisible() && action->isEnabled();
  const QWidget* widget = Search(name);
  return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

std::string Shown_Text(std::string_view name) {
  if (const QAction* action = Search_Action(name)) {
    return Without_Mnemonic(action->text()).toStdString();
  }
  QWidget& widget = Find(name);
  if (const auto* combo = qobject_cast<QComboBox*>(&widget)) {
    return combo->currentText().toStdString();
  }
  if (const auto* sheet = qobject_cast<QPlainTextEdit*>(&widget)) {
    return sheet->toPlainText().toStdString();
  }
  if (const auto* line = qobject_cast<QLineEdit*>(&widget)) return line->text().toStdString();
  if (widget.isWindow()) return widget.windowTitle().toStdString();
  if (const auto* label = qobject_cast<QLabel*>(&widget)) {
    return (label->buddy() != nullptr ? Without_Mnemonic(label->text()) : label->text())
        .toStdString();
  }
  const QVariant text = widget.property("text");
  return Without_Mnemonic(text.isValid() ? text.toString() : widget.property("title").toString())
      .toStdString();
}

Texts Shown_Rows(std::string_view name) {
  QWidget& widget = Find(name);
  const auto* combo = qobject_cast<QComboBox*>(&widget);
  const QAbstractItemModel* model = combo != nullptr ? combo->model() : Find_List(name).model();
  Texts rows;
  for (int row = 0; row < model->rowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < model->columnCount(); ++column) {
      cells.append(model->index(row, column).data().toString());
    }
    rows.push_back(cells.join(" | ").toStdString());
  }
  return rows;
}

Texts Shown_Column(std::string_view name, std::size_t column) {
  Texts cells;
  for (const std::string& row : Shown_Rows(name)) {
    std::size_t begin = 0;
    for (std::size_t skipped = 0; skipped < column; ++skipped) begin = row.find(" | ", begin) + 3;
    cells.push_back(row.substr(begin, row.find(" | ", begin) - begin));
  }
  return cells;
}

int Row_With(std::string_view name, const std::string& text, std::size_t column) {
  const Texts cells = Shown_Column(name, column);
  const auto found = std::ranges::find(cells, text);
  if (found != cells.end()) return static_cast<int>(found - cells.begin());
  ADD_FAILURE() << name << " has no row with \"" << text << '"';
  return -1;
}

std::string Color_of(std::string_view name) {
  const Forms::Color color = Control<Forms::Placed_Control>(name).BackColor();
  if (color == Forms::Window_Color) return "open";
  if (color == Forms::Required_Color) return "required";
  if (color == Forms::Locked_Color) return "locked";
  return color == Forms::Open_Check_Color ? "check" : "another colour";
}

bool Is_Locked(std::string_view name) { return Control<Forms::Lockable_Control>(name).Locked(); }

bool Is_Ticked(std::string_view check_box) {
  return Control<Forms::Check_Box>(check_box).Value() == 1;
}

Texts Ticked_Rows(std::string_view name) {
  const auto& list = Control<Forms::Check_List>(name);
  Texts ticked;
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.Selected(row)) ticked.push_back(list.List(row));
  }
  return ticked;
}

void Click(std::string_view name) {
  QWidget& widget = Find(name);
  // A check box takes a click on its box and its text only, and may be much wider.
  const bool narrow = qobject_cast<QCheckBox*>(&widget) != nullptr;
  Click_At(widget,
           narrow ? QPoint(widget.height() / 2, widget.height() / 2) : widget.rect().center());
}

void Double_Click(std::string_view name) {
  QWidget& widget = Find(name);
  QWidget* window = widget.window();
  QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {},
                     widget.mapTo(window, widget.rect().center()));
  Settle_Events();
}

void Click_Row(std::string_view name, int row, bool with_ctrl) {
  QAbstractItemView& view = Find_List(name);
  const QRect place = Row_Place(view, row);
  Click_At(*view.viewport(), QPoint(place.right() - qMin(8, place.width() / 2), place.center().y()),
           with_ctrl ? Qt::ControlModifier : Qt::NoModifier);
}

void Click_Line(std::string_view name, const std::string& text, std::size_t column) {
  Click_Row(name, Row_With(name, text, column));
}

void Click_Tick(std::string_view name, int row) {
  QAbstractItemView& view = Find_List(name);
  const QRect place = Row_Place(view, row);
  Click_At(*view.viewport(), QPoint(place.left() + place.height() / 2, place.center().y()));
}

void Click_Header(std::string_view name, int column) {
  auto* header = Find(name).findChild<QHeaderView*>();
  if (header == nullptr) No_Such(name);
  Click_At(*header->viewport(),
           QPoint(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                  header->height() / 2));
}

void Choose(std::string_view name, std::string_view entry) {
  auto* combo = dynamic_cast<QComboBox*>(&Find(name));
  if (combo == nullptr || combo->findText(To_Qt(entry)) < 0) No_Such(entry);
  Click(name);
  QAbstractItemView& list = *combo->view();
  if (!Wait_Until([&] { return list.isVisible(); })) No_Such(entry);
  // The list takes no click that belongs to the one that opened it.
  QTest::qWait(QApplication::doubleClickInterval());
  const QRect place = Row_Place(list, combo->findText(To_Qt(entry)));
  Click_At(*list.viewport(), place.center());
}

void Type_Into(std::string_view name, std::string_view text) {
  Empty(name);
  Type(text);
}

void Paste_Into(std::string_view name, std::string_view text) {
  QApplication::clipboard()->setText(To_Qt(text));
  Empty(name);
  Press("Ctrl+V");
}

void Type(std::string_view text) {
  for (const QChar letter : To_Qt(text)) {
    QWindow* window = QApplication::focusWindow();
    if (window == nullptr) return;
    const Qt::Key key = letter == ' ' ? Qt::Key_Space : Qt::Key_unknown;
    QTest::sendKeyEvent(QTest::Click, window, key, QString(letter), Qt::NoModifier);
  }
  Settle_Events();
}

void Press(std::string_view key) {
  Let_Go();
  key_down = QKeySequence(To_Qt(key))[0];
  if (QWindow* window = Window_With_Keys()) {
    QTest::keyPress(window, key_down->key(), key_down->keyboardModifiers());
  }
  Let_Go();
  Settle_Events();
}

void Repeat(std::string_view key, int times) {
  const QKeyCombination keys = QKeySequence(To_Qt(key))[0];
  const QString text = keys.key() < Qt::Key_Escape ? QString(QChar(keys.key())) : QString();
  for (int time = 0; time < times; ++time) {
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
      QWindow* window = Window_With_Keys();
      if (window == nullptr) return;
      qt_handleKeyEvent(window, type, keys.key(), keys.keyboardModifiers(), text.toLower(), true);
      Settle_Events();
    }
  }
}

void Pick(std::string_view entry) {
  for (QAction* action : Way_To(&Find_Action(entry))) {
    QWidget* place = Bar_Or_Menu_Of(action);
    if (place == nullptr || !Wait_Until([place] { return place->isVisible(); })) No_Such(entry);
    Click_At(*place, Place_Of(place, action).center());
  }
}

void Close_Window(std::string_view form) {
  Find(form).close();
  Settle_Events();
}

std::string Focused() {
  for (const QWidget* widget = QApplication::focusWidget(); widget != nullptr;
       widget = widget->parentWidget()) {
    if (!widget->objectName().isEmpty()) return widget->objectName().toStdString();
  }
  return {};
}

void Turn_Wheel(std::string_view name) {
  QWidget& widget = Find(name);
  const QPointF place = widget.rect().center();
  QWheelEvent turn(place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &turn);
  Settle_Events();
}

bool Wait_Until(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 5000); }

void Settle_Events() {
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
}

// The box may come up inside an event loop of its own, above that of whoever waits for it.
void Act_In_Next_Box(const std::function<void()>& act) {
  auto* look = new QTimer(qApp);
  QObject::connect(look, &QTimer::timeout, [look, act, until = QDeadlineTimer(5000)] {
    const QWidget* box = QApplication::activeModalWidget();
    const bool is_up = box != nullptr && QApplication::focusWindow() == box->windowHandle();
    if (!is_up && !until.hasExpired()) return;
    look->stop();
    look->deleteLater();
    if (is_up) act();
  });
  look->start(1);
}

void Press_In_Next_Box(std::string_view key) {
  Act_In_Next_Box([key = std::string(key)] { Press(key); });
}

Box_Script::Box_Script(std::vector<bool> answers) : answers_(std::move(answers)) {
  Forms::Watch_Boxes_For_Tests([this](const Forms::Box& box) -> std::optional<bool> {
    boxes_.push_back(box);
    if (answers_.empty()) return true;
    const bool answer = answers_.front();
    answers_.erase(answers_.begin());
    return answer;
  });
}

Box_Script::~Box_Script() { Forms::Watch_Boxes_For_Tests({}); }

Texts Box_Script::Texts() const {
  ::Texts texts;
  for (const Forms::Box& box : boxes_) texts.push_back(box.text);
  return texts;
}

Texts Box_Script::Said() const {
  ::Texts said;
  for (const Forms::Box& box : boxes_) {
    said.push_back(box.title + (box.asks ? "? " : ": ") + box.text);
  }
  return said;
}

Texts Told_By(const std::function<void()>& action) {
  const Box_Script boxes;
  action();
  return boxes.Said();
}

void Expect_End(int number, const std::function<void()>& action) {
  const End_Watch end;
  EXPECT_THAT(Told_By(action),
              testing::ElementsAre(testing::StartsWith("Wine Cellar: Run-time error '" +
                                                       std::to_string(number) + "':")));
  EXPECT_EQ(end.Status(), 1);
}

End_Watch::End_Watch() {
  Hooks().end_process = [this](int status) { status_ = status; };
}

End_Watch::~End_Watch() {
  Hooks().end_process = {};
  Reset_After_End_For_Tests();
}
