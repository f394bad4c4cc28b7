// The screens of this room, made known to the registry.
#pragma once

/// Registers them, the main window as the main one. To be called once, before the first is opened.
void Register_Main_Window_Screens();
