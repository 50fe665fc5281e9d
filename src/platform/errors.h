// Run-time errors with a number and a description, and the ways to handle them.
#pragma once

#include <QString>

#include <exception>
#include <functional>
#include <initializer_list>

// The numbers that the system knows.
inline constexpr int overflow = 6;
inline constexpr int outOfMemory = 7;
inline constexpr int outOfRange = 9;
inline constexpr int divisionByZero = 11;
inline constexpr int typeMismatch = 13;
inline constexpr int fileNotFound = 53;
inline constexpr int deviceError = 57;
inline constexpr int diskFull = 61;
inline constexpr int pastEndOfFile = 62;
inline constexpr int deviceUnavailable = 68;
inline constexpr int permissionDenied = 70;
inline constexpr int pathAccessError = 75;
inline constexpr int pathNotFound = 76;
inline constexpr int invalidProperty = 380;
inline constexpr int invalidPicture = 481;

/// An error of the running operation. Its description is the text that the pupil is shown.
class RuntimeError : public std::exception {
public:
    explicit RuntimeError(int number);
    /// With a description of its own.
    RuntimeError(int number, const QString& description);

    int number() const { return code; }
    QString description() const;
    const char* what() const noexcept override { return "run-time error"; }

private:
    int code;
    QString ownDescription;
};

/// The description of the exception being handled. Call it from a catch block only.
QString currentErrorDescription();

/// Shows a failure the usual way: a beep, then a box with a stop icon, titled "Error".
void showErrorBox(const QString& description);

/// Says in a friendly way why something can't be done now: a beep, then a box.
void refuse(const QString& title, const QString& text);

/// Runs `routine`. An error ends it, leaving the state reached so far, and is shown in the error box. True
/// without an error.
bool withErrorBox(const std::function<void()>& routine);

using Steps = std::initializer_list<std::function<void()>>;

/// Runs every step, also after one has failed; `failed`, when given, is called after each failure.
void ignoringErrors(Steps steps, const std::function<void()>& failed = {});

/// Wraps every function that Qt calls, so that no exception propagates into Qt. An uncaught error shows the
/// error box and ends the operation; the program continues.
void guarded(const std::function<void()>& handler);
