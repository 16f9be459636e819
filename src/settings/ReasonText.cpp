// SPDX-License-Identifier: MIT
#include "settings/ReasonText.h"

#include "logbook/FileProblem.h"
#include "settings/Texts.h"

std::string ReasonText(const std::error_code& error, Language language) {
    if (error.category() != FileProblems())
        return error.message();
    switch (static_cast<FileProblem>(error.value())) {
    case FileProblem::NoRegularFile:
        return std::string(Text(TextId::NoRegularFile, language));
    case FileProblem::TooLarge:
        return std::string(Text(TextId::FileTooLarge, language));
    case FileProblem::LineTooLong:
        return std::string(Text(TextId::LineTooLong, language));
    case FileProblem::TooManyLines:
        return std::string(Text(TextId::TooManyLines, language));
    }
    return error.message();
}
