#include "platform/forms/Frame.h"

#include <QGroupBox>

#include "platform/forms/Place_Data.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

Frame::Frame(Form& form, std::string_view name, std::string_view caption)
    : Placed_Control(form, name, caption) {
  Set_Widget(new QGroupBox(Widget_Parent()));
}

Frame::~Frame() = default;

void Frame::Show_Caption() {
  Placed_Control::Show_Caption();
  static_cast<QGroupBox*>(Widget())->setTitle(Escaped(Caption()));
}

Place Group(Frame& frame, const Place& content) {
  auto data = std::make_shared<Place_Data>();
  data->kind = Place_Kind::Group;
  data->control = &frame;
  data->places = {content};
  return Place(std::move(data));
}

}  // namespace Forms
