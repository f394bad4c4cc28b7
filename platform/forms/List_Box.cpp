#include "platform/forms/List_Box.h"

#include <QKeyEvent>
#include <QListView>

#include "platform/forms/Handlers.h"
#include "platform/forms/Plain_List.h"
#include "platform/run_time/Run_Time_Error.h"

namespace Forms {

namespace {

class List_Widget : public QListView {
 public:
  List_Widget(QWidget* parent, Item_List& list, Plain_List& entries)
      : QListView(parent), list_(list) {
    setModel(&entries);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    connect(this, &QListView::clicked,
            [this](const QModelIndex& index) { list_.Chosen_By_User(index.row()); });
    connect(this, &QListView::doubleClicked,
            [this](const QModelIndex&) { Raise(list_, list_.DblClick); });
  }

  void Show_Index(int row) {
    const QModelIndex index = model()->index(row, 0);
    if (currentIndex() == index) return;
    setCurrentIndex(index);
    if (!index.isValid()) clearSelection();
  }

 protected:
  // The toolkit does not choose an entry whose tick box is pressed.
  void mousePressEvent(QMouseEvent* event) override {
    QListView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid()) setCurrentIndex(index);
  }

  // A drag does not choose: what was pressed is what is clicked.
  void mouseMoveEvent(QMouseEvent*) override {}

  void keyPressEvent(QKeyEvent* event) override {
    const int before = currentIndex().row();
    QListView::keyPressEvent(event);
    if (currentIndex().row() != before) list_.Chosen_By_User(currentIndex().row());
  }

 private:
  Item_List& list_;
};

}  // namespace

List_Box::List_Box(Form& form, std::string_view name) : Item_List(form, name) {
  Set_Widget(new List_Widget(Widget_Parent(), *this, Entries()));
}

List_Box::~List_Box() = default;

void List_Box::Show_List_Index() { static_cast<List_Widget*>(Widget())->Show_Index(ListIndex()); }

Check_List::Check_List(Form& form, std::string_view name) : Item_List(form, name) {
  Entries().user_ticks = [this](int row, bool ticked) { Ticked_By_User(row, ticked); };
  Set_Widget(new List_Widget(Widget_Parent(), *this, Entries()));
}

Check_List::~Check_List() = default;

void Check_List::Show_List_Index() { static_cast<List_Widget*>(Widget())->Show_Index(ListIndex()); }

bool Check_List::Selected(int index) const {
  if (index < 0 || index >= ListCount()) Fail(Failure::Invalid_Property_Array_Index);
  return Entries().Ticked(index);
}

void Check_List::Set_Selected(int index, bool selected) {
  if (Selected(index) == selected) return;
  Entries().Set_Ticked(index, selected);
  if (ItemCheck) ItemCheck(index);
}

int Check_List::SelCount() const {
  int count = 0;
  for (int i = 0; i < ListCount(); ++i) count += Entries().Ticked(i) ? 1 : 0;
  return count;
}

void Check_List::Ticked_By_User(int index, bool ticked) {
  if (Locked() || Entries().Ticked(index) == ticked) return;
  Take_Index(index);
  Entries().Set_Ticked(index, ticked);
  Raise(*this, ItemCheck, index);
}

}  // namespace Forms
