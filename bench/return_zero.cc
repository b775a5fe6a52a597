// The least that a process costs, to compare start-up with.
int main() { return 0; }
