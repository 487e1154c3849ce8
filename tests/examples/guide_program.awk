# Makes one C++ program of a guide: its first block of code is the program's beginning, each later one a scope of main.
/^```cpp$/ { inside = 1; ++blocks; if (blocks == 2) print "int main() {"; if (blocks > 1) print "{"; next }
/^```$/ && inside { inside = 0; if (blocks > 1) print "}"; next }
inside { print }
END { print "}" }
