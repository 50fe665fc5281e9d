#include "platform/errors.h"

#include "platform/desktop.h"

#include <new>
#include <utility>

using namespace Qt::StringLiterals;

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
    return u"Application-defined or object-defined error"_s;
}

QString currentErrorDescription()
{
    try {
        throw;
    } catch (const RuntimeError& error) {
        return error.description();
    } catch (const std::bad_alloc&) {
        return u"Out of memory"_s;
    } catch (const std::exception& error) {
        return QString::fromLocal8Bit(error.what());
    } catch (...) {
        return u"Application-defined or object-defined error"_s;
    }
}

void showErrorBox(const QString& description)
{
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::stop, u"Error"_s, description);
}

void refuse(const QString& title, const QString& text)
{
    desktop.sound.beep();
    desktop.boxes.showMessage(MessageIcon::exclamation, title, text);
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
        } catch (...) { // ignoring errors is the purpose of this function
        }
        if (!succeeded && failed)
            failed();
    }
}

void guarded(const std::function<void()>& handler) { withErrorBox(handler); }
