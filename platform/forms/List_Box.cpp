#include "platform/forms/List_Box.h"

#include "platform/forms/Focus.h"
#include "platform/forms/Handlers.h"
#include "platform/forms/Later.h"
#include "platform/forms/List_Common.h"
#include "platform/forms/List_Widget.h"
#include "platform/forms/Plain_List.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

namespace {

class List_Box_Widget : public List_Widget {
 public:
  List_Box_Widget(QWidget* parent, List_Box& list, Plain_List& entries)
      : List_Widget(parent, list, entries), list_(list) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const std::function<void()>* handler = Handler_Of(*event);
    if (handler == nullptr || !*handler || list_.ListIndex() < 0) {
      List_Widget::keyPressEvent(event);
    } else {
      End_Word();
      Raise(list_, *handler);
    }
  }

 private:
  // A key held together with another one is a different command.
  const std::function<void()>* Handler_Of(const QKeyEvent& event) const {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return nullptr;
    if (Is_Enter(event)) return &list_.Enter_Pressed;
    return event.key() == Qt::Key_Delete ? &list_.Delete_Pressed : nullptr;
  }

  List_Box& list_;
};

}  // namespace

List_Box::List_Box(Form& form, std::string_view name) : Item_List(form, name) {
  Set_Widget(new List_Box_Widget(Widget_Parent(), *this, Entries()));
}

List_Box::~List_Box() = default;

void List_Box::EnsureVisible(int index) {
  if (index < 0 || index >= ListCount()) Fail(Failure::Invalid_Property_Array_Index);
  auto* view = static_cast<List_Widget*>(Widget());
  view->scrollTo(view->model()->index(index, 0));
}

void List_Box::Set_Bold(int index, bool bold) {
  if (index < 0 || index >= ListCount()) Fail(Failure::Invalid_Property_Array_Index);
  Entries().Set_Bold(index, bold);
}

void List_Box::Set_Arrow_Keys_Pick(bool pick) {
  static_cast<List_Widget*>(Widget())->Set_Arrow_Keys_Pick(pick);
}

void List_Box::Show_List_Index() { static_cast<List_Widget*>(Widget())->Show_Index(ListIndex()); }

Check_List::Check_List(Form& form, std::string_view name) : Item_List(form, name) {
  Entries().user_ticks = [this](int row, bool ticked) { Ticked_By_User(row, ticked); };
  Set_Widget(new List_Widget(Widget_Parent(), *this, Entries()));
}

Check_List::~Check_List() { Forget_Later(&Entries()); }

void Check_List::Show_List_Index() { static_cast<List_Widget*>(Widget())->Show_Index(ListIndex()); }

bool Check_List::Selected(int index) const {
  if (index < 0 || index >= ListCount()) Fail(Failure::Invalid_Property_Array_Index);
  return Entries().Ticked(index);
}

void Check_List::Set_Selected(int index, bool selected) {
  if (Selected(index) == selected) return;
  Entries().Set_Ticked(index, selected);
  if (selected) Show_Later(&Entries(), [this] { Show_First_Tick(); });
  if (ItemCheck) ItemCheck(index);
}

// Who is in the list would lose the place where they are.
void Check_List::Show_First_Tick() {
  int row = 0;
  while (row < ListCount() && !Entries().Ticked(row)) ++row;
  if (row == ListCount() || Focus_Watch::The().Owner() == this) return;
  auto* view = static_cast<List_Widget*>(Widget());
  Bring_To_Middle(*view, view->model()->index(row, 0));
}

int Check_List::SelCount() const {
  int count = 0;
  for (int i = 0; i < ListCount(); ++i) count += Entries().Ticked(i) ? 1 : 0;
  return count;
}

void Check_List::Ticked_By_User(int index, bool ticked) {
  if (Locked() || Entries().Ticked(index) == ticked || !Focus_Watch::The().Go_To(*this)) return;
  Take_Index(index);
  Entries().Set_Ticked(index, ticked);
  Raise(*this, ItemCheck, index);
}

}  // namespace Forms
