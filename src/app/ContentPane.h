// SPDX-License-Identifier: MIT
#pragma once

class QPlainTextEdit;
class QWidget;

// The pane below the list that shows the data and the comment of a row, in letters of one width.
QPlainTextEdit* MakeContentPane(QWidget* parent);
