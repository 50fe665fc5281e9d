// The commands that open a database of the pupil's choice.
#pragma once

/// Shows the cards, asks for a folder and makes it the open database; nothing happens after a Cancel.
/// Raises what loading raises: nobody answers for an error here, and it ends the program.
void openDatabase();
