#include "platform/errors.h"

#include "platform/desktop.h"

#include <new>
#include <utility>

namespace {

constexpr std::pair<int, const char*> descriptions[] = {
    {overflow, "Overflow"},
    {outOfMemory, "Out of memory"},
    {outOfRange, "Subscript out of range"},
    {divisionByZero, "Division by zero"},
    {typeMismatch, "Type mismatch"},
    {fileNotFound, "File not found"},
    {deviceError, "Device I/O error"},
    {diskFull, "Disk full"},
    {pastEndOfFile, "Input past end of file"},
    {deviceUnavailable, "Device unavailable"},
    {permissionDenied, "Permission denied"},
    {pathAccessError, "Path/File access error"},
    {pathNotFound, "Path not found"},
    {invalidProperty, "Invalid property value"},
    {invalidPicture, "Invalid picture"},
};

} // namespace

RuntimeError::RuntimeError(int number)
    : code(number)
{
}

RuntimeError::RuntimeError(int number, const QString& description)
    : code(number)
    , ownDescription(description)
{
}

QString RuntimeError::description() const
{
    if (!ownDescription.isEmpty())
        return ownDescription;
    for (const auto& [number, text] : descriptions) {
        if (number == code)
            return QString::fromLatin1(text);
    }
    return QStringLiteral("Application-defined or object-defined error");
}

QString currentErrorDescription()
{
    try {
        throw;
    } catch (const RuntimeError& error) {
        return error.description();
    } catch (const std::bad_alloc&) {
        return QStringLiteral("Out of memory");
    } catch (const std::exception& error) {
        return QString::fromLocal8Bit(error.what());
    } catch (...) {
        return QStringLiteral("Application-defined or object-defined error");
    }
}

void showErrorBox(const QString& description)
{
    desktop.beep();
    desktop.showMessage(MessageIcon::stop, QStringLiteral("Error"), description);
}

bool withErrorBox(const std::function<void()>& routine)
{
    QString description;
    try {
        routine();
        return true;
    } catch (...) {
        description = currentErrorDescription();
    }
    showErrorBox(description);
    return false;
}

void ignoringErrors(Steps steps, const std::function<void()>& failed)
{
    for (const auto& step : steps) {
        bool succeeded = false;
        try {
            step();
            succeeded = true;
        } catch (...) { // passing over is the whole purpose
        }
        if (!succeeded && failed)
            failed();
    }
}

void guarded(const std::function<void()>& handler) { withErrorBox(handler); }
