#include "platform/forms/Combo_Box.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QListView>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>

#include "platform/forms/Handlers.h"
#include "platform/forms/Plain_List.h"

namespace Forms {

namespace {

constexpr int entries_at_once = 20;
constexpr int shortest_text = 8;

bool Moves_On(const QKeyEvent& event) {
  return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab ||
         event.key() == Qt::Key_Escape;
}

class Combo_Widget : public QComboBox {
 public:
  Combo_Widget(QWidget* parent, Combo_Box& combo) : QComboBox(parent), combo_(combo) {
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

  void showPopup() override {
    if (combo_.Locked() || count() == 0) return;
    Make_List();
    view()->window()->installEventFilter(this);
    view()->setMinimumWidth(Widest_Entry());
    QComboBox::showPopup();
    Keep_On_Screen(*view()->window());
  }

  // The first click of two opens the list, and the list gets the second one.
  bool eventFilter(QObject* object, QEvent* event) override {
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
    if (hasFocus() && !combo_.Locked()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Copy)) {
      QApplication::clipboard()->setText(currentText());
    } else if (!combo_.Locked() || Moves_On(*event)) {
      if (!combo_.Locked()) Make_List();
      QComboBox::keyPressEvent(event);
    } else {
      event->ignore();
    }
  }

 private:
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
  static_cast<QComboBox*>(Widget())->setCurrentIndex(ListIndex());
}

}  // namespace Forms
