#include "platform/forms/Combo_Box.h"

#include "platform/forms/Combo_Widget.h"
#include "platform/forms/Plain_List.h"

namespace Forms {

Combo_Box::Combo_Box(Form& form, std::string_view name) : Item_List(form, name) {
  auto* widget = new Combo_Widget(Widget_Parent(), *this);
  widget->setModel(&Entries());
  widget->setFixedHeight(widget->sizeHint().height());
  QObject::connect(widget, &QComboBox::activated, [this](int index) { Chosen_By_User(index); });
  Set_Widget(widget);
}

Combo_Box::~Combo_Box() = default;

void Combo_Box::Show_List_Index() { static_cast<Combo_Widget*>(Widget())->Show_Index(ListIndex()); }

}  // namespace Forms
