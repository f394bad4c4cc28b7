// The locale that conversions go by. For the sources of this folder only.
#pragma once

#include <QLocale>

const QLocale& Machine_Locale();
