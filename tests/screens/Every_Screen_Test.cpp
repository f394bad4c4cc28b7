// What holds on every screen, in every language, whatever the desktop's font.
#include "tests/support/Every_Screen.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QToolTip>
#include <QTreeView>

#include "platform/forms/Form_Data.h"
#include "tests/support/Faults_Mended.h"

namespace {

constexpr const char* japanese_font = "Noto Sans CJK JP";
constexpr QSize desktop(1280, 720);
constexpr QSize window_frame(16, 48);

std::string Name_of(const QWidget* widget) { return widget->objectName().toStdString(); }

std::string As_Text(QSize size) {
  return std::to_string(size.width()) + " x " + std::to_string(size.height());
}

template <class Kind>
std::vector<Kind*> Seen_in(Forms::Form& form) {
  std::vector<Kind*> seen;
  for (Kind* widget : form.Window()->findChildren<Kind*>()) {
    if (widget->isVisible()) seen.push_back(widget);
  }
  return seen;
}

void Expect_Window_Fits(Forms::Form& form) {
  const QSize size = form.Window()->size();
  EXPECT_EQ(size, size.boundedTo(desktop - window_frame)) << As_Text(size);
}

void Expect_Only_Lists_Scroll(Forms::Form& form) {
  for (const QScrollBar* bar : Seen_in<QScrollBar>(form)) {
    bool of_a_list = false;
    for (const QWidget* part = bar; part != nullptr; part = part->parentWidget()) {
      of_a_list = of_a_list || qobject_cast<const QAbstractItemView*>(part) != nullptr ||
                  qobject_cast<const QPlainTextEdit*>(part) != nullptr;
    }
    EXPECT_TRUE(of_a_list) << "the form scrolls by " << bar->maximum();
  }
}

void Expect_Whole(const QWidget* widget, QSize needed) {
  EXPECT_EQ(widget->size(), widget->size().expandedTo(needed))
      << Name_of(widget) << " has " << As_Text(widget->size()) << " and needs " << As_Text(needed);
}

void Expect_Captions_Are_Whole(Forms::Form& form) {
  for (const QLabel* label : Seen_in<QLabel>(form)) {
    if (label->text().isEmpty()) continue;
    Expect_Whole(label, label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                          : label->minimumSizeHint());
  }
  for (const QAbstractButton* button : Seen_in<QAbstractButton>(form)) {
    if (button->text().isEmpty()) continue;
    const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
    Expect_Whole(button, button->isCheckable() ? button->minimumSizeHint() : text + QSize(8, 4));
  }
}

void Expect_Controls_Are_Named_And_In_Sight(Forms::Form& form) {
  const QRect window = form.Window()->rect();
  for (const Forms::Control* control : form.Data().controls) {
    const auto* placed = dynamic_cast<const Forms::Placed_Control*>(control);
    if (placed == nullptr || !placed->Widget()->isVisible()) continue;
    const QWidget* widget = placed->Widget();
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << Name_of(widget);
    const QRect place(widget->mapTo(form.Window(), QPoint(0, 0)), widget->size());
    EXPECT_TRUE(window.contains(place)) << Name_of(widget) << " is out of sight";
  }
}

void Expect_Columns_Fill_Their_List(Forms::Form& form) {
  for (const QTreeView* list : Seen_in<QTreeView>(form)) {
    const QHeaderView& header = *list->header();
    int right = 0;
    for (int column = 0; column < header.count(); ++column) {
      if (header.isSectionHidden(column)) continue;
      right = header.sectionPosition(column) + header.sectionSize(column);
      EXPECT_GE(header.sectionSize(column), header.sectionSizeHint(column)) << Name_of(list);
    }
    EXPECT_EQ(right, header.length()) << Name_of(list);
    EXPECT_GE(right, list->viewport()->width()) << Name_of(list);
  }
}

// All that one can go to by a letter has one, each its own; of the boxes to tick, those that do.
void Expect_Letters(Forms::Form& form) {
  QStringList texts;
  for (const QAction* menu : form.Data().window->menuBar()->actions()) texts.append(menu->text());
  for (const QAbstractButton* button : Seen_in<QAbstractButton>(form)) {
    const bool has_to = !button->isCheckable() && !button->text().isEmpty();
    if (has_to || button->text().contains('&')) texts.append(button->text());
  }
  for (const QLabel* label : Seen_in<QLabel>(form)) {
    if (label->buddy() != nullptr) texts.append(label->text());
  }
  std::set<QString> letters;
  for (const QString& text : texts) {
    const QString letter = QString(text).remove("&&").section('&', 1).left(1).toUpper();
    EXPECT_TRUE(!letter.isEmpty() && letters.insert(letter).second) << text.toStdString();
  }
}

void Expect_Fits(Forms::Form& form) {
  Expect_Letters(form);
  Expect_Columns_Fill_Their_List(form);
  Expect_Window_Fits(form);
  Expect_Only_Lists_Scroll(form);
  Expect_Captions_Are_Whole(form);
  Expect_Controls_Are_Named_And_In_Sight(form);
}

class Screens_in : public Every_Screen, public testing::WithParamInterface<Integer> {};

TEST_P(Screens_in, every_font_fit_the_smallest_desktop) {
  Each_Screen(GetParam(), japanese_font, 11, Expect_Fits);
  const Faults_Mended faults;
  Each_Screen(GetParam(), "", 12, Expect_Fits);
  if (GetParam() != english) return;
  for (const int points : {9, 10, 11}) Each_Screen(english, "", points, Expect_Fits);
}

TEST_F(Every_Screen, A_window_opens_as_it_was_left_but_never_beyond_the_desktop) {
  const auto column = [] {
    return dynamic_cast<QTreeView&>(Find("Wine_Cellar_ListView")).header();
  };
  Start_With("Wines_Cellar_List");
  const QSize first = Find("Wine_Form").size();
  column()->resizeSection(2, 60);
  Find("Wine_Form").resize(first - QSize(7, 9));
  const int width = column()->sectionSize(2);
  Close_Window("Wine_Form");
  Pick("Wines_Cellar_List");
  EXPECT_EQ(Find("Wine_Form").size(), first - QSize(7, 9));
  EXPECT_EQ(column()->sectionSize(2), width);
  Find("Wine_Form").resize(desktop * 2);
  Close_Window("Wine_Form");
  Pick("Wines_Cellar_List");
  Expect_Window_Fits(Forms::Screen("Wine_Form").Instance());
}

TEST_F(Every_Screen, The_tip_of_a_cut_text_begins_with_the_whole_text) {
  Start_With("Wines_Cellar_List");
  auto& view = dynamic_cast<QTreeView&>(Find("Wine_Cellar_ListView"));
  const QModelIndex label = view.model()->index(0, 2);
  view.header()->resizeSection(2, 60);
  const QPoint place = view.visualRect(label).center();
  QHelpEvent rest(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
  QApplication::sendEvent(view.viewport(), &rest);
  EXPECT_THAT(QToolTip::text().toStdString(),
              testing::HasSubstr(label.data().toString().toStdString()));
}

INSTANTIATE_TEST_SUITE_P(Language, Screens_in, testing::Range<Integer>(3, 10),
                         testing::PrintToStringParamName());

}  // namespace
