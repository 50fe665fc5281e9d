// The files beside a database that hold its questions and the answers to them. A database is complete without
// them.
#pragma once

/// Deletes the answers to the open database's questions. A failure is not reported.
void deleteAnswers();
