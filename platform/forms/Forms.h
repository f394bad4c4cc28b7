// Everything that a screen is made of.
#pragma once

// IWYU pragma: begin_exports
#include "platform/forms/Check_Box.h"
#include "platform/forms/Colors.h"
#include "platform/forms/Combo_Box.h"
#include "platform/forms/Command_Button.h"
#include "platform/forms/Control.h"
#include "platform/forms/Control_Array.h"
#include "platform/forms/Form.h"
#include "platform/forms/Form_Texts.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/Layout.h"
#include "platform/forms/List_Box.h"
#include "platform/forms/List_View.h"
#include "platform/forms/Menu.h"
#include "platform/forms/Message_Box.h"
#include "platform/forms/Picture.h"
#include "platform/forms/Screens.h"
#include "platform/forms/Text_Box.h"
// IWYU pragma: end_exports
