// The files beside a database that hold its notes: questions and comments for the class, and the answers to
// them. A database is complete without them.
#pragma once

#include <QString>

#include <optional>

/// The notes of the open database as they are in its file; none without that file. Raises as readWholeFile().
std::optional<QString> readQuestions();

/// The same for the jotter, which is going to change them: an empty file is made where there is none. Errors
/// are ignored, the notes are empty then.
QString openQuestions();

/// Writes the notes, and a second copy of them with a heading, for the desktop's own programs; each with one
/// more line ending than they have. What somebody else has written there since is kept first
/// (store/keptVersions). True when the notes themselves were kept in this way. Raises what stands in the way:
/// 75 when there is a file that couldn't be read, else as replaceFile().
bool saveQuestions(const QString& notes);

/// The path of the copy with the heading; empty while there is none.
QString questionsForPrograms();

/// Deletes the answers to the open database's questions, and nothing in a folder that is no database. A
/// failure is not reported.
void deleteAnswers();
