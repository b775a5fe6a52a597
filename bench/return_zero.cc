// The minimal cost of a process, as a reference for the start-up.
int main() { return 0; }
