// Tramelo, the desktop program.
#include "app/programa_qt.h"

int main(int argc, char** argv) {
    return tramelo::ExecutaPrograma(argc, argv);
}
