#include "platform/forms/Combo_Box.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QListView>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>

#include "platform/forms/Combo_Typing.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/List_Common.h"
#include "platform/forms/Plain_List.h"

namespace Forms {

namespace {

constexpr int entries_at_once = 20;
constexpr int shortest_text = 8;

bool Moves_On(const QKeyEvent& event) {
  return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab ||
         event.key() == Qt::Key_Escape;
}

constexpr Qt::KeyboardModifiers command_keys =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

// A command comes next, as it may be the button that stores what was entered.
bool Begins_A_Command(const QKeyEvent& event) {
  return event.key() == Qt::Key_Alt || event.key() == Qt::Key_Control ||
         event.key() == Qt::Key_Meta;
}

bool Opens_Or_Closes(const QKeyEvent& event) {
  const bool arrow = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up;
  return (arrow && (event.modifiers() & command_keys) == Qt::AltModifier) ||
         (event.key() == Qt::Key_F4 && (event.modifiers() & command_keys) == 0);
}

class Combo_Widget : public QComboBox {
 public:
  Combo_Widget(QWidget* parent, Combo_Box& combo)
      : QComboBox(parent), combo_(combo), typing_(*this, combo) {
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(entries_at_once);
    // Without it the toolkit would choose the first entry by itself.
    setPlaceholderText(" ");
  }

  // The toolkit asks every entry for its icon to know the box's size.
  QSize sizeHint() const override {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QFontMetrics metrics = fontMetrics();
    const QSize text(shortest_text * metrics.horizontalAdvance('X'), metrics.height() + 2);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

  Combo_Typing& Typing() { return typing_; }

  // Where a word led to is where the list opens.
  void showPopup() override {
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
  void hidePopup() override {
    typing_.Give_Up();
    QComboBox::hidePopup();
  }

  // The first click of two opens the list, and the list gets the second one.
  bool eventFilter(QObject* object, QEvent* event) override {
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

 protected:
  // The toolkit would make a list only to change its look.
  void changeEvent(QEvent* event) override {
    if (findChild<QListView*>() == nullptr) {
      // NOLINTNEXTLINE(bugprone-parent-virtual-call): that of the box itself makes the list
      QWidget::changeEvent(event);
    } else {
      Make_List();
      QComboBox::changeEvent(event);
    }
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (!combo_.Locked()) QComboBox::mousePressEvent(event);
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    hidePopup();
    if (event->button() == Qt::LeftButton) Raise(combo_, combo_.DblClick);
  }

  void wheelEvent(QWheelEvent* event) override {
    typing_.Give_Up();
    if (hasFocus() && !combo_.Locked()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Copy)) {
      QApplication::clipboard()->setText(currentText());
    } else if (combo_.Locked()) {
      Moves_On(*event) ? QComboBox::keyPressEvent(event) : event->ignore();
    } else if (Opens_Or_Closes(*event)) {
      showPopup();
    } else if (Begins_A_Command(*event) || (event->modifiers() & command_keys) != 0) {
      typing_.Finish();
      event->ignore();
    } else if (!typing_.Hear(*event)) {
      Is_Enter(*event) && combo_.ListIndex() >= 0 ? Choose_Shown(*event) : Step(*event);
    }
  }

  // Tab finishes the word before the focus goes, and goes on from where that left the focus.
  bool focusNextPrevChild(bool next) override {
    typing_.Finish();
    return !hasFocus() || QComboBox::focusNextPrevChild(next);
  }

  void focusOutEvent(QFocusEvent* event) override {
    typing_.Give_Up();
    QComboBox::focusOutEvent(event);
  }

 private:
  void Choose_Shown(const QKeyEvent& event) {
    if (!event.isAutoRepeat()) combo_.Chosen_By_User(combo_.ListIndex());
  }

  // From where the word led to. At the end of the list that is no step, and no choice.
  void Step(QKeyEvent& event) {
    if (typing_.Has_Word()) return event.ignore();  // Shift, on the way to the next letter
    typing_.Forget();
    Make_List();
    QComboBox::keyPressEvent(&event);
    if (currentIndex() != combo_.ListIndex()) setCurrentIndex(combo_.ListIndex());
  }

  // Before the toolkit, which would look for letters in its own way.
  bool Heard_By_List(const QKeyEvent& event) {
    if (Opens_Or_Closes(event)) {
      hidePopup();
      return true;
    }
    if ((event.modifiers() & command_keys) != 0) return true;
    if (event.key() != Qt::Key_Tab) return typing_.Hear(event);
    const int row = view()->currentIndex().row();
    hidePopup();
    if (row >= 0) combo_.Chosen_By_User(row);
    focusNextPrevChild(true);
    return true;
  }

  // The list behind the box is made when it is first needed, which in most boxes it never is. It
  // measures its entries at each change of look, shown or not.
  void Make_List() {
    if (auto* list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
  }

  // The box may be narrow; names that differ at their ends must be told apart in its list.
  int Widest_Entry() const {
    const QFontMetrics metrics = view()->fontMetrics();
    int widest = 0;
    for (int i = 0; i < count(); ++i)
      widest = std::max(widest, metrics.horizontalAdvance(itemText(i)));
    const int margins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    const int frame = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const int scroll_bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    return std::min(widest + margins + frame + scroll_bar, screen()->availableGeometry().width());
  }

  void Keep_On_Screen(QWidget& list) const {
    const int beyond = list.geometry().right() - screen()->availableGeometry().right();
    if (beyond > 0) list.move(list.x() - beyond, list.y());
  }

  Combo_Box& combo_;
  Combo_Typing typing_;
};

}  // namespace

Combo_Box::Combo_Box(Form& form, std::string_view name) : Item_List(form, name) {
  auto* widget = new Combo_Widget(Widget_Parent(), *this);
  widget->setModel(&Entries());
  widget->setFixedHeight(widget->sizeHint().height());
  QObject::connect(widget, &QComboBox::activated, [this](int index) { Chosen_By_User(index); });
  Set_Widget(widget);
}

Combo_Box::~Combo_Box() = default;

void Combo_Box::Show_List_Index() {
  auto* widget = static_cast<Combo_Widget*>(Widget());
  widget->Typing().Forget();
  widget->setCurrentIndex(ListIndex());
}

}  // namespace Forms
