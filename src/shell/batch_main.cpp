#include "shell/batch.h"

int main(int argc, char** argv) {
  return zamo::runBatch(argc, argv);
}
