// The text in boxes of several lines, with the line ends that files and the clipboard have.
#pragma once

#include <QString>

class QPlainTextEdit;

/// The text with CR LF at its line ends and every blank as it was typed. `lineBreak` stands for a break
/// within a paragraph, which Shift+Return makes.
QString typedText(const QPlainTextEdit& box, const QString& lineBreak = QStringLiteral("\r\n"));
