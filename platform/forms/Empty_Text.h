// What a list says while it has no rows. For the sources of this room only.
#pragma once

#include <QString>
#include <functional>
#include <string_view>

class QAbstractItemView;

namespace Forms {

/// `changed` is called whenever the list gets its first rows or loses its last ones.
void Set_Empty_Text(QAbstractItemView& view, std::string_view text,
                    const std::function<void()>& changed);
/// "" while the list has rows.
QString Empty_Text_Of(const QAbstractItemView& view);
/// For the view's paintEvent, after the view has painted itself.
void Paint_Empty_Text(const QAbstractItemView& view);

}  // namespace Forms
