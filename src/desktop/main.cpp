#include <QApplication>

#include "desktop/program.h"

int main(int argc, char** argv) { return tarvane::desktop::RunProgram(argc, argv); }
