// Captions as a screen reader speaks them.
#pragma once

#include "window/CWnd.h"

// The caption without the marks of its access key; a doubled mark stands for one.
CUString WithoutMarks(const CUString& caption);

// The text of the nearest label before the control in tab order, without its marks; empty when there is none.
CUString LabelBefore(const CWnd& control);
