// The pages of the player beside the lesson itself.
#pragma once

#include <QWidget>

#include <functional>

struct Lesson;

/// What the lesson is called, how it looks and what to press.
QWidget* titlePage(const Lesson& lesson, const std::function<void()>& play,
                   const std::function<void()>& close);

/// Why the lesson can't be played.
QWidget* faultPage(const QString& why, const std::function<void()>& close);
