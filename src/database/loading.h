// Loading a whole database from its folder: when it is opened, at a change of view and at each tick of the
// refresh.
#pragma once

/// Reads the description, all records and all pictures, and rebuilds the title. A visible card keeps its
/// place; any other card goes to the place in its record, or to a free place. A face is redrawn only when its
/// picture file, label or look has changed since the last load.
///
/// Raises 76, before anything is changed, when the folder can't be listed, and 9 when there are more records
/// than the tables hold.
void loadAllCards();

/// The next load redraws every face.
void forgetLoadedFaces();
