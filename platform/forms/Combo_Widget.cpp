#include "platform/forms/Combo_Widget.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QListView>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>

#include "platform/forms/Combo_Box.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/List_Common.h"

namespace Forms {

namespace {

constexpr int entries_at_once = 20;
constexpr int shortest_text = 8;

bool Moves_On(const QKeyEvent& event) {
  return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab ||
         event.key() == Qt::Key_Escape;
}

// A command comes next, as it may be the button that stores what was entered.
bool Begins_A_Command(const QKeyEvent& event) {
  return event.key() == Qt::Key_Alt || event.key() == Qt::Key_Control ||
         event.key() == Qt::Key_Meta;
}

bool Opens_Or_Closes(const QKeyEvent& event) {
  const bool arrow = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up;
  const auto with = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  return (arrow && with == Qt::AltModifier) ||
         (event.key() == Qt::Key_F4 && with == Qt::NoModifier);
}

}  // namespace

Combo_Widget::Combo_Widget(QWidget* parent, Combo_Box& combo)
    : QComboBox(parent), combo_(combo), typing_(*this, combo) {
  setFocusPolicy(Qt::StrongFocus);
  setMaxVisibleItems(entries_at_once);
  // Without it the toolkit would choose the first entry by itself.
  setPlaceholderText(" ");
}

void Combo_Widget::Show_Index(int index) {
  typing_.Forget();
  setCurrentIndex(index);
}

// The toolkit asks every entry for its icon to know the box's size.
QSize Combo_Widget::sizeHint() const {
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QFontMetrics metrics = fontMetrics();
  const QSize text(shortest_text * metrics.horizontalAdvance('X'), metrics.height() + 2);
  return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}

// Where a word led to is where the list opens.
void Combo_Widget::showPopup() {
  const int hit = currentIndex();
  typing_.Give_Up();
  if (combo_.Locked() || count() == 0) return;
  Make_List();
  for (QObject* heard : {static_cast<QObject*>(view()), static_cast<QObject*>(view()->window())})
    heard->installEventFilter(this);
  view()->setMinimumWidth(Widest_Entry());
  QComboBox::showPopup();
  Keep_On_Screen(*view()->window());
  if (hit >= 0) view()->setCurrentIndex(model()->index(hit, 0));
}

void Combo_Widget::hidePopup() {
  typing_.Give_Up();
  QComboBox::hidePopup();
}

// The first click of two opens the list, and the list gets the second one.
bool Combo_Widget::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && object == view()) {
    return Keeps_From_Toolkit(static_cast<QKeyEvent&>(*event));
  }
  if (event->type() == QEvent::KeyPress && object == view()) {
    return Heard_By_List(static_cast<QKeyEvent&>(*event));
  }
  if (event->type() != QEvent::MouseButtonDblClick) return QComboBox::eventFilter(object, event);
  const auto& click = static_cast<const QMouseEvent&>(*event);
  if (!rect().contains(mapFromGlobal(click.globalPosition().toPoint()))) return false;
  hidePopup();
  Raise(combo_, combo_.DblClick);
  return true;
}

// The toolkit would make a list only to change its look.
void Combo_Widget::changeEvent(QEvent* event) {
  if (findChild<QListView*>() == nullptr) {
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): that of the box itself makes the list
    QWidget::changeEvent(event);
  } else {
    Make_List();
    QComboBox::changeEvent(event);
  }
}

void Combo_Widget::mousePressEvent(QMouseEvent* event) {
  if (!combo_.Locked()) QComboBox::mousePressEvent(event);
}

void Combo_Widget::mouseDoubleClickEvent(QMouseEvent* event) {
  hidePopup();
  if (event->button() == Qt::LeftButton) Raise(combo_, combo_.DblClick);
}

void Combo_Widget::wheelEvent(QWheelEvent* event) {
  typing_.Give_Up();
  if (hasFocus() && !combo_.Locked()) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

void Combo_Widget::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(currentText());
  } else if (combo_.Locked()) {
    Moves_On(*event) ? QComboBox::keyPressEvent(event) : event->ignore();
  } else if (Opens_Or_Closes(*event)) {
    showPopup();
  } else if (Begins_A_Command(*event) || Has_Command_Key(*event)) {
    typing_.Finish();
    event->ignore();
  } else if (!typing_.Hear(*event)) {
    Is_Enter(*event) && combo_.ListIndex() >= 0 ? Choose_Shown(*event) : Step(*event);
  }
}

// Tab finishes the word before the focus goes, and goes on from where that left the focus.
bool Combo_Widget::focusNextPrevChild(bool next) {
  typing_.Finish();
  return !hasFocus() || QComboBox::focusNextPrevChild(next);
}

void Combo_Widget::focusOutEvent(QFocusEvent* event) {
  typing_.Give_Up();
  QComboBox::focusOutEvent(event);
}

void Combo_Widget::Choose_Shown(const QKeyEvent& event) {
  if (!event.isAutoRepeat()) combo_.Chosen_By_User(combo_.ListIndex());
}

// From where the word led to. At the end of the list that is no step, and no choice.
void Combo_Widget::Step(QKeyEvent& event) {
  if (typing_.Has_Word()) return event.ignore();  // Shift, on the way to the next letter
  typing_.Forget();
  Make_List();
  QComboBox::keyPressEvent(&event);
  if (currentIndex() != combo_.ListIndex()) setCurrentIndex(combo_.ListIndex());
}

// The toolkit closes the list at some keys before they are pressed.
bool Combo_Widget::Keeps_From_Toolkit(QKeyEvent& event) const {
  const bool ends_word = event.key() == Qt::Key_Escape && typing_.Has_Word();
  const bool no_choice = Is_Enter(event) && (typing_.Found_Nothing() || Has_Command_Key(event));
  if (!ends_word && !Opens_Or_Closes(event) && !no_choice) return false;
  event.accept();
  return true;
}

// Before the toolkit, which would look for letters in its own way. A word without a hit is no
// choice of what the list stands on.
bool Combo_Widget::Heard_By_List(const QKeyEvent& event) {
  if (Opens_Or_Closes(event)) {
    hidePopup();
    return true;
  }
  if (Has_Command_Key(event)) return true;
  const bool tab = event.key() == Qt::Key_Tab;
  const bool found = !typing_.Found_Nothing();
  if (!tab && (found || !Is_Enter(event))) return typing_.Hear(event);
  const int row = view()->currentIndex().row();
  hidePopup();
  if (found && row >= 0) combo_.Chosen_By_User(row);
  if (tab) focusNextPrevChild(true);
  return true;
}

// The list behind the box is made when it is first needed, which in most boxes it never is. It
// measures its entries at each change of look, shown or not.
void Combo_Widget::Make_List() {
  if (auto* list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
}

// The box may be narrow; names that differ at their ends must be told apart in its list.
int Combo_Widget::Widest_Entry() const {
  const QFontMetrics metrics = view()->fontMetrics();
  int widest = 0;
  for (int i = 0; i < count(); ++i)
    widest = std::max(widest, metrics.horizontalAdvance(itemText(i)));
  const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
  const int frame = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
  const int scroll_bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return std::min(widest + margins + frame + scroll_bar, screen()->availableGeometry().width());
}

void Combo_Widget::Keep_On_Screen(QWidget& list) const {
  const int beyond = list.geometry().right() - screen()->availableGeometry().right();
  if (beyond > 0) list.move(list.x() - beyond, list.y());
}

}  // namespace Forms
