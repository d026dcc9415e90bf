#include <iostream>

#include "batch/varnok_batch.h"

int main(int argc, char** argv) { return varnok::batch::varnok_batch(argc, argv, std::cout, std::cerr); }
