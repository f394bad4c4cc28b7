// The screens of this room, made known to the registry.
#pragma once

void Register_Pairing_Screens();
