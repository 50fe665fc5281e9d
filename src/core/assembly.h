// Where the floors are put together: what lower ones ask of higher ones leads to its routine from here on.
#pragma once

class Form1;

/// Connects the screen's hooks to the subsystems and to the main window.
void assemble(Form1& window);
