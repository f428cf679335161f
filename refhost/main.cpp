// kalhost: the reference host of the statistics-dialogs module.
#include "refhost/Kalhost.h"

int main(int argc, char** argv)
{
    return kalhost::Run(argc, argv);
}
