#include "catalogue/Catalogue_Screens.h"

#include "catalogue/List_Screens.h"

void Register_Catalogue_Screens() { Register_List_Screens(); }
