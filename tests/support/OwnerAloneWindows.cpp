// SPDX-License-Identifier: MIT
#include "support/OwnerAlone.h"

#include <memory>
#include <vector>

#include <windows.h>

#include <aclapi.h>

// True when the system has a list of rights for the path in which every grant is to its owner.
bool IsForOwnerAlone(const std::filesystem::path& path) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    PSID owner = nullptr;
    PACL rights = nullptr;
    if (GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT,
                              OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner, nullptr,
                              &rights, nullptr, &descriptor) != ERROR_SUCCESS)
        return false;
    const std::unique_ptr<void, decltype(&LocalFree)> freed(descriptor, &LocalFree);
    bool hasGrant = false;
    for (DWORD i = 0; rights != nullptr && i < rights->AceCount; ++i) {
        void* entry = nullptr;
        if (GetAce(rights, i, &entry) == 0)
            return false;
        auto* const grant = static_cast<ACCESS_ALLOWED_ACE*>(entry);
        if (grant->Header.AceType != ACCESS_ALLOWED_ACE_TYPE)
            continue;
        if (EqualSid(&grant->SidStart, owner) == 0)
            return false;
        hasGrant = true;
    }
    return hasGrant;
}
