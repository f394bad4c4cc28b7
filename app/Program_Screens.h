// Every screen that the program has.
#pragma once

/// Makes the screens of all rooms known. Called once, before the first one is opened.
void Register_Program_Screens();
