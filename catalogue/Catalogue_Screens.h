// Makes the screens of this room known to the registry.
#pragma once

void Register_Catalogue_Screens();
