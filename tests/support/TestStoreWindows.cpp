// SPDX-License-Identifier: MIT
#include "support/TestStore.h"

#include "settings/Registry.h"
#include "support/TestBranch.h"

struct TestStore::Place {
    TestBranch Branch;
    std::unique_ptr<SettingsStore> Store = MakeUserSettings();
};

TestStore::TestStore() : place_(std::make_unique<Place>()) {}
TestStore::~TestStore() = default;
SettingsStore& TestStore::Store() const { return *place_->Store; }
bool TestStore::IsMade() const { return place_->Branch.HasKeys(); }
