#include "platform/forms/Control.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QLayout>
#include <QTextDocument>
#include <QWidget>

#include "platform/forms/Empty_Text.h"
#include "platform/forms/Focus.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Data.h"
#include "platform/forms/Form_Texts.h"
#include "platform/forms/Later.h"
#include "platform/forms/Look.h"
#include "platform/forms/Qt_Text.h"
#include "platform/forms/Tab_Stops.h"

namespace Forms {

Control::Control(Form& form, std::string_view name, std::string_view caption)
    : form_(form), name_(name), caption_(caption) {
  form_.Data().controls.push_back(this);
}

Control::~Control() { std::erase(form_.Data().controls, this); }

void Control::Set_Caption(std::string_view caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Show_Caption();
  if (form_.Visible()) Assign_Mnemonics(form_);
}

void Control::Set_Enabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Show_Enabled();
  Settle_Tab_Stops_Later(form_);
}

void Control::Set_Visible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Show_Visible();
  Settle_Tab_Stops_Later(form_);
}

Placed_Control::Placed_Control(Form& form, std::string_view name, std::string_view caption)
    : Control(form, name, caption) {}

Placed_Control::~Placed_Control() { Destroy_Widget(); }

// A frame takes the widgets inside it along.
void Placed_Control::Destroy_Widget() {
  if (widget_ != nullptr) delete widget_;
}

QWidget* Placed_Control::Widget_Parent() const { return Owner().Data().content; }

void Placed_Control::Set_Widget(QWidget* widget) {
  widget_ = widget;
  widget_->setObjectName(To_Qt(Name()));
  widget_->hide();
  Focus_Watch::The().Enter(widget_, *this);
  // The style knows the widget for a field from here on, and gives its frame the room of one.
  if (auto* area = qobject_cast<QAbstractScrollArea*>(widget_))
    area->setFrameStyle(area->frameStyle());
  QObject::connect(widget_, &QObject::destroyed, [this] {
    Focus_Watch::The().Remove(widget_, *this);
    Forget_Later(this);
    widget_ = nullptr;
  });
  Show_Caption();
  Show_Accessible_Name();
}

void Placed_Control::Set_Placed() {
  placed_ = true;
  Show_Visible();
}

void Placed_Control::Show_Caption() {
  Show_Accessible_Name();
  Show_Word();
}

void Placed_Control::Show_Enabled() { widget_->setEnabled(Enabled()); }

void Placed_Control::Show_Visible() { widget_->setVisible(placed_ && Visible()); }

void Placed_Control::Set_Width(int pixels) { widget_->setFixedWidth(pixels); }

void Placed_Control::SetFocus() { Focus_Watch::The().Set_Focus(*this); }

void Placed_Control::Set_BackColor(Color color) {
  if (color == back_color_) return;
  back_color_ = color;
  Show_Look();
}

void Placed_Control::Set_ForeColor(Color color) {
  if (color == fore_color_) return;
  fore_color_ = color;
  Show_Look();
}

void Placed_Control::Set_Stand_In(bool stand_in) {
  if (stand_in == stand_in_) return;
  stand_in_ = stand_in;
  Show_Look();
}

void Placed_Control::Set_Tool_Tip(std::string_view text) {
  tool_tip_ = text;
  Show_State();
}

void Placed_Control::Show_Look() {
  Show_Later(this, [this] { Dress(*this); });
  Settle_Tab_Stops_Later(Owner());
  Show_State();
}

std::string_view Placed_Control::State() const {
  if (back_color_ == Required_Color) return Form_Texts().required;
  if (Shows_As_Locked()) return Form_Texts().locked;
  if (back_color_ == Active_List_Color) return Form_Texts().to_click_next;
  return {};
}

void Placed_Control::Show_Word() {
  if (!Form_Texts().words_of_captions.empty()) Show_State();
}

// The toolkit takes a tip that looks like marked-up text for such a one.
void Placed_Control::Show_State() {
  QStringList lines;
  const std::string_view word = Word_Of_Caption(Caption().empty() ? label_caption_ : Caption());
  const std::string_view stand_in = stand_in_ ? Form_Texts().stand_in : std::string_view();
  for (const std::string_view part : {std::string_view(tool_tip_), word, stand_in, State()}) {
    if (!part.empty()) lines.append(To_Show(part));
  }
  const QString text = lines.join('\n');
  widget_->setToolTip(Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text);
  const auto* list = qobject_cast<const QAbstractItemView*>(widget_);
  if (list != nullptr) lines.append(Empty_Text_Of(*list));
  lines.removeAll({});
  widget_->setAccessibleDescription(lines.join('\n'));
}

void Placed_Control::Set_Empty_Text(std::string_view text) {
  Forms::Set_Empty_Text(static_cast<QAbstractItemView&>(*widget_), text, [this] { Show_State(); });
}

void Placed_Control::Set_Accessible_Name(std::string_view name) {
  accessible_name_ = name;
  Show_Accessible_Name();
}

void Placed_Control::Set_Label_Caption(std::string_view caption) {
  label_caption_ = caption;
  Show_Accessible_Name();
  Show_Word();
}

void Placed_Control::Show_Accessible_Name() {
  QString name = To_Qt(accessible_name_);
  if (name.isEmpty()) name = To_Qt(label_caption_);
  if (name.isEmpty()) name = To_Qt(Caption());
  if (name.isEmpty()) name = To_Qt(Name()).replace('_', ' ');
  widget_->setAccessibleName(name);
}

void Lockable_Control::Set_Locked(bool locked) {
  if (locked == locked_) return;
  locked_ = locked;
  Show_Locked();
  Show_Look();
}

Texts_Of_Forms& Form_Texts() {
  static Texts_Of_Forms words;
  return words;
}

std::string_view Word_Of_Caption(std::string_view caption) {
  const auto& words = Form_Texts().words_of_captions;
  const auto found = words.find(caption);
  return found == words.end() ? std::string_view() : found->second;
}

}  // namespace Forms
