// SPDX-License-Identifier: MIT
#include "support/OtherProcess.h"

#include <map>

namespace {

std::map<std::string, OtherProcess::Function>& Functions() {
    static std::map<std::string, OtherProcess::Function> functions;
    return functions;
}

} // namespace

OtherProcess::Known::Known(const char* name, Function function) { Functions().emplace(name, function); }

OtherProcess::~OtherProcess() {
    if (process_ != 0)
        Kill();
}

OtherProcess::Function OtherProcessFunctions::Named(const std::string& name) {
    const auto found = Functions().find(name);
    return found == Functions().end() ? nullptr : found->second;
}
