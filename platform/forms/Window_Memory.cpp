#include "platform/forms/Window_Memory.h"

#include <QHeaderView>
#include <QSettings>
#include <QSplitter>
#include <QTreeView>
#include <algorithm>

#include "platform/forms/Form_Data.h"
#include "platform/forms/Qt_Text.h"

namespace Forms {

namespace {

constexpr const char* size_key = "Size";
constexpr const char* maximised_key = "Maximised";

// Read at the first form that opens.
QSettings& Settings() {
  static QSettings settings;
  return settings;
}

/// The settings of one form.
class Form_Settings {
 public:
  explicit Form_Settings(const Form_Data& form) { Settings().beginGroup(To_Qt(form.name)); }
  ~Form_Settings() { Settings().endGroup(); }
  Form_Settings(const Form_Settings&) = delete;
  Form_Settings& operator=(const Form_Settings&) = delete;

  QVariant Value(const QString& key) const { return Settings().value(key); }
  // What has not changed is not written.
  void Set(const QString& key, const QVariant& value) const {
    if (Value(key) != value) Settings().setValue(key, value);
  }
};

template <class Action>
void Each_Bar(const Form_Data& form, const Action& action) {
  int number = 0;
  for (QSplitter* bar : form.content->findChildren<QSplitter*>()) {
    action(*bar, "Bar_" + QString::number(number++));
  }
}

template <class Action>
void Each_Table(const Form_Data& form, const Action& action) {
  for (const QTreeView* table : form.content->findChildren<QTreeView*>()) {
    action(*table->header(), table->objectName());
  }
}

QVariantList Widths_Of(const QHeaderView& header) {
  QVariantList widths;
  for (int section = 0; section < header.count(); ++section) {
    widths.append(header.sectionSize(section));
  }
  return widths;
}

// Another font may need more for the headings than they had.
void Set_Widths(QHeaderView& header, const QVariantList& widths) {
  const qsizetype count = std::min<qsizetype>(widths.size(), header.count());
  for (int section = 0; section < count; ++section) {
    if (header.isSectionHidden(section)) continue;
    header.resizeSection(section,
                         std::max(widths[section].toInt(), header.sectionSizeHint(section)));
  }
}

}  // namespace

QSize Remembered_Size(const Form_Data& form) {
  return Form_Settings(form).Value(size_key).toSize();
}

bool Was_Maximised(const Form_Data& form) {
  return Form_Settings(form).Value(maximised_key).toBool();
}

void Restore_Parts(const Form_Data& form) {
  const Form_Settings settings(form);
  Each_Bar(form, [&](QSplitter& bar, const QString& key) {
    bar.restoreState(settings.Value(key).toByteArray());
  });
  Each_Table(form, [&](QHeaderView& header, const QString& key) {
    Set_Widths(header, settings.Value(key).toList());
  });
}

void Remember_Window(const Form_Data& form) {
  const Form_Settings settings(form);
  settings.Set(maximised_key, form.window->isMaximized());
  if (!form.window->isMaximized()) settings.Set(size_key, form.window->size());
  Each_Bar(form, [&](QSplitter& bar, const QString& key) { settings.Set(key, bar.saveState()); });
  Each_Table(
      form, [&](QHeaderView& header, const QString& key) { settings.Set(key, Widths_Of(header)); });
  Settings().sync();
}

}  // namespace Forms
