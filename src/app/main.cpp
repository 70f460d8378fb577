// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

int main(int argc, char** argv) {
  return quorvane::runApplication(argc, argv);
}
