#pragma once

#include "files/commandline.h"

#include <memory>

class QCoreApplication;

/// The application object that the words of a call need: a PDF takes the toolkit's fonts, nothing else does.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv);

/// The row of "report".
Command reportCommand();
