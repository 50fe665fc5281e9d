// The command that opens a database of the pupil's choice.
#pragma once

/// Shows the cards, asks for a folder and makes it the open database; nothing happens after Cancel. Errors
/// are not caught here; the caller then ends the program.
void openDatabase();
