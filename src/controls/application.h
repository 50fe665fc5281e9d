// What the project's programs have in common: their size on the screen and their look.
#pragma once

#include <QString>

#include <functional>
#include <memory>

class QApplication;

/// The application, as large as the screens allow where the desktop doesn't scale by itself. `chosenScale`
/// gives the setting that displayScale() takes; a first QApplication is there when it is asked.
std::unique_ptr<QApplication> makeApplication(int& count, char** arguments,
                                              const std::function<QString()>& chosenScale);

/// Name, icon, style and style sheet.
void dressApplication();
