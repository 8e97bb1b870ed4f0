// SPDX-FileCopyrightText: 2026 The Brindock authors
// SPDX-License-Identifier: GPL-3.0-or-later

/// Failures with the classic run-time error numbers, and the one way to pass over a failing step.
#pragma once

#include <QString>

#include <exception>
#include <utility>

/// The numbers that the program's routines raise.
namespace ErrorNumber {
inline constexpr int InvalidCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int Subscript = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileNumber = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int DeviceError = 57;
inline constexpr int FileAlreadyExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int ObjectNotSet = 91;
inline constexpr int InvalidPattern = 93;
inline constexpr int InvalidProperty = 380;
} // namespace ErrorNumber

/// A run-time error. What nothing catches, the event loop's top shows, and the program ends.
class RuntimeError : public std::exception {
public:
    /// `number` is one of ErrorNumber; `description` is for a person and names the file where there is one; `source`
    /// names the part of the program that raised it, where that is told.
    RuntimeError(int number, QString description, QString source = {})
        : number_(number),
          description_(std::move(description)),
          source_(std::move(source)),
          what_(description_.toUtf8()) {}

    [[nodiscard]] int Number() const { return number_; }

    [[nodiscard]] const QString& Description() const { return description_; }

    [[nodiscard]] const QString& Source() const { return source_; }

    [[nodiscard]] const char* what() const noexcept override { return what_.constData(); }

private:
    int number_;
    QString description_;
    QString source_;
    QByteArray what_;
};

/// Runs one step whose failure is passed over, so that the next step runs. Returns whether the step succeeded.
template <typename Step>
bool Ignoring(Step&& step) {
    try {
        std::forward<Step>(step)();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}
