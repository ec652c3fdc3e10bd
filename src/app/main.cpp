// Program entry: reads the command line and runs the game in a window or
// headless.
#include <cstdio>

int main(int argc, char** argv) {
  std::puts("lanefarer 0.1.0");
  return 0;
}
