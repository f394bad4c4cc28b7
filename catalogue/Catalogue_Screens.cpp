#include "catalogue/Catalogue_Screens.h"

#include "platform/forms/Screens.h"

void Register_Catalogue_Screens() {}
