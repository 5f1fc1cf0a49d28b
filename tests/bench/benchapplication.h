#pragma once

#include <QApplication>

#include <clocale>

/// Chooses the platform without a screen, before the toolkit asks for one.
struct WithoutScreen
{
    WithoutScreen() { qputenv("QT_QPA_PLATFORM", "offscreen"); }
};

/// Application of a bench that draws: no screen is needed, and numbers have the decimal point that the program has.
class BenchApplication : WithoutScreen, public QApplication
{
public:
    BenchApplication(int &argc, char **argv) : QApplication(argc, argv) { setlocale(LC_NUMERIC, "C"); }
};
