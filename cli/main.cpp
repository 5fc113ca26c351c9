#include "cli/CommandLine.h"

int main(int argc, char** argv) {
    return calvoro::RunCommandLine(argc, argv);
}
