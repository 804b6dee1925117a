// Holds the precompiled headers that all test programs share.
int main() {
    return 0;
}
