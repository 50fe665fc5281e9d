// Loading a whole database from its folder: at every opening, change of view and tick of the refresh.
#pragma once

/// Reads the description, all records and all pictures, and rebuilds the title. A card in view keeps its
/// place; one that isn't goes where its record says, or to a free place. Faces whose picture file and label
/// are those of the last load are taken from it.
///
/// Raises 76 when the folder can't be listed, before anything is changed, and 9 at the record past the end of
/// the tables.
void loadAllCards();

/// The next load draws every face anew.
void forgetLoadedFaces();
