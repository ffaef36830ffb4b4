// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The program of a link check: it links a whole library and the libraries below it.
int main() {
    return 0;
}
