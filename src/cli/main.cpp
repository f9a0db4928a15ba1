// tarvex-mis: batch checks, resaves and exports of mission files on the editor's core.
#include <cstdio>

int main(int argc, char** argv) {
    (void)argv;
    std::fputs("tarvex-mis: the mission commands (check, resave, export, info) are not built yet.\n",
               argc > 1 ? stderr : stdout);
    return argc > 1 ? 64 : 0;
}
