// How the standard library tells of errors, without what its own functions would bring into the library: names of types
// made readable, formatted texts, strings of an old kind, sources of random numbers, in all a tenth of our code. What
// is thrown here is caught where every exception is. Code of ours asks for exhausted memory at most, which keeps its
// type.
//
// The linker takes these in place of the standard library's own. One of its general errors that is missing here shows
// as a function that is defined twice.
#include <cstdlib>
#include <exception>
#include <new>

namespace {

class LibraryError : public std::exception {
 public:
  explicit LibraryError(const char* text) : text_(text) {}
  const char* what() const noexcept override { return text_; }

 private:
  const char* text_;  // lives as long as the program: the standard library passes literals
};

}  // namespace

namespace __gnu_cxx {

// What the original writes belongs on no host's console.
void __verbose_terminate_handler() { std::abort(); }

}  // namespace __gnu_cxx

namespace std {

void __throw_bad_alloc() { throw bad_alloc(); }
void __throw_bad_array_new_length() { throw bad_array_new_length(); }
void __throw_bad_function_call() { throw LibraryError("bad_function_call"); }
void __throw_length_error(const char* text) { throw LibraryError(text); }
void __throw_logic_error(const char* text) { throw LibraryError(text); }
void __throw_out_of_range_fmt(const char* format, ...) { throw LibraryError(format); }

}  // namespace std
