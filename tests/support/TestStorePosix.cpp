// SPDX-License-Identifier: MIT
#include "support/TestStore.h"

#include "settings/JsonSettings.h"
#include "support/TemporaryFolder.h"

struct TestStore::Place {
    TemporaryFolder Folder;
    JsonSettings Store{Folder / "Qorvix.json"};
};

TestStore::TestStore() : place_(std::make_unique<Place>()) {}
TestStore::~TestStore() = default;
SettingsStore& TestStore::Store() const { return place_->Store; }
bool TestStore::IsMade() const { return std::filesystem::exists(place_->Folder / "Qorvix.json"); }
