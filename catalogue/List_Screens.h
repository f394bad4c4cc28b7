// The four list screens by their names.
#pragma once

void Register_List_Screens();
