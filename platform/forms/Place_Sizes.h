// How large a control wants to be, and how small it can be made. For the sources of this room only.
#pragma once

class QLayoutItem;
class QWidget;

namespace Forms {

struct Place_Data;

/// As wide as so many digits. A digit is about as wide as a letter in every script's font; what the
/// toolkit calls the average width of a character is twice that in the fonts of Chinese and
/// Japanese.
int Width_Of_Characters(const QWidget& widget, int characters);

/// Limits the widget to what its place says, and returns what stands for it in a layout: an item
/// that asks for the size the place says and makes do with the least at which the widget can be
/// used. Lists, fields and combo boxes get smaller on a small desktop; captions do not.
QLayoutItem* Item_Of(const Place_Data& place, QWidget& widget);

}  // namespace Forms
