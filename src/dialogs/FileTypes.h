// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>

// Gives a file dialog its types of files from a text of the form "description|patterns|description|patterns",
// with ";" between several patterns. The dialog shows the descriptions unchanged; "*.*" means every file.
void SetFileTypes(QFileDialog& dialog, const QString& types);
