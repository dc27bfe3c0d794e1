/* NemPdfUI.h: the settings dialogs of the NEM pdf vonder printer, NemPdfUI64.dll.
 *
 * The one header that a host includes, for C and C++. It needs nothing but <stdint.h> and <wchar.h>. NemPdfUI.hpp wraps
 * it for hosts in C++20; docs/hosts.md shows how hosts are written.
 *
 *
 * Calling order
 *
 *     NemPdfUIHandle dialog = NULL;
 *     int32_t quality = 85;
 *
 *     NemPdfUICreateDialog(&dialog);
 *     NemPdfUISetPropertyW(dialog, NEMPDFUI_GENERAL, L"PrinterName", L"NEM pdf vonder");
 *     NemPdfUISetPropertyW(dialog, NEMPDFUI_SETTINGS, L"GraphicJpegQuality", &quality);
 *     if (NemPdfUIDoModal(dialog) > 0)
 *       NemPdfUIGetPropertyW(dialog, NEMPDFUI_SETTINGS, L"GraphicJpegQuality", &quality, sizeof quality);
 *     NemPdfUIFreeDialog(&dialog);
 *
 * A new dialog object holds 0 in every number and nothing in every text: the defaults are the host's business, and a
 * host sets all that it wants to be shown. NemPdfUIDoModal may be called again on the same object; the sheet then
 * starts from the values that stand. docs/properties.md lists all properties with their types and values.
 *
 *
 * Properties
 *
 * A property is named by an index and a name. The index says which set of properties is meant, and each set knows its
 * own names only. Names are compared exactly, with case.
 *
 * A number is a signed 32-bit integer, passed by pointer in both directions. A text is passed as a pointer to its
 * first character and ends with a zero.
 *
 *
 * Results
 *
 * Unless a function says otherwise, 1 is success and 0 is failure. The reason of a failure goes to the trace file of
 * the calling thread, if the machine has tracing switched on; no function hands it out.
 *
 * Exhausted memory may also surface as a C++ exception: no function has a catch-all.
 *
 * An error that no function has answered for yet is answered for by the thread's next call of a set or get function:
 * that call does nothing but return 0, and the calls behind it work again. Two events leave such an error behind:
 * NemPdfUIGetVersion with a null pointer, and a trace file that could not be opened when the thread came in.
 *
 *
 * Handles
 *
 * A handle is valid from NemPdfUICreateDialog to NemPdfUIFreeDialog. A null handle and a pointer to anything else
 * are refused as each function says; to tell them apart the library reads four bytes at the handle. A freed object is
 * marked as dead and refused in the same way, unless its memory has been given to somebody else in the meantime;
 * NemPdfUIFreeDialog sets the host's variable to null for that reason.
 *
 *
 * Threads
 *
 * Any thread may call; the library takes it up on its first call and creates none of its own. Different objects may
 * be used on different threads at the same time. One object must not: the host lets only one thread at a time into
 * the functions with that object. NemPdfUIDoModal runs its message loop on the calling thread.
 *
 * That thread is best one without COM or of a single-threaded apartment: in a multi-threaded one the system's folder
 * picker comes in an older style. The sheet has the dpi awareness that the thread has.
 *
 * What the library keeps for a thread is given back when the thread ends. Before FreeLibrary the host ends the threads
 * that have called it, and sees to it that no sheet is open and no function is running. After a sheet it is best to
 * keep the library: a screen reader inside of the process may still hold objects of the sheet's controls.
 */
#ifndef NEMPDFUI_H
#define NEMPDFUI_H

#include <stdint.h>
#include <wchar.h>

/* Stands in front of each function. Define it as __declspec(dllimport) before including this header to spare the
 * linker its jump stubs; the functions are plain C functions, exported by their plain names. */
#ifndef NEMPDFUI_API
#define NEMPDFUI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* A dialog object: all values of one dialog. Its content is the library's own. */
typedef struct NemPdfUIDialog* NemPdfUIHandle;

/* The values of `index`. */
#define NEMPDFUI_GENERAL (-1) /* the six general properties: owner window, titles, help file, printer */
#define NEMPDFUI_SETTINGS 0   /* the settings of the tab "Basic Settings" */
#define NEMPDFUI_DOCUMENT 1   /* the settings of the tab "e.pdf Document Properties" */

/* The further result of the set functions: the handle is bad. */
#define NEMPDFUI_BAD_HANDLE 2

/* The version that this header belongs to, as NemPdfUIGetVersion gives it: a byte of major version, a byte of minor
 * version whose two hexadecimal digits are read as decimal ones, 16 bits of patch level. This one is 2.10.4. */
#define NEMPDFUI_VERSION 0x2100004

/* Creates a dialog object and stores its handle at `handle`.
 *
 * Returns 1 when done; 0 if `handle` is null or the thread cannot be taken up, and nothing is stored then. When there
 * is no memory for the object a null handle is stored and the result is 1 as well: test the handle. The host owns the
 * object and gives it back with NemPdfUIFreeDialog. */
NEMPDFUI_API int NemPdfUICreateDialog(NemPdfUIHandle* handle);

/* Frees the dialog object whose handle stands at `handle`, and stores a null handle there.
 *
 * Returns 1 when freed. Returns 0 and changes nothing if `handle` is null, the handle at it is null or bad, the sheet
 * of this object is on the screen, or the thread cannot be taken up. */
NEMPDFUI_API int NemPdfUIFreeDialog(NemPdfUIHandle* handle);

/* Shows the settings sheet of the dialog object and returns when the user has closed it.
 *
 * With OK the changed values have been stored in the object before the function returns; with Cancel the object is as
 * it was. Returns the result of the platform's property sheet: above 0 after OK; 0 after Cancel, or if the sheet could
 * not be prepared, the sheet of this object is on the screen already, or the thread cannot be taken up; -1 if the
 * sheet failed or the handle is null or bad. */
NEMPDFUI_API int NemPdfUIDoModal(NemPdfUIHandle handle);

/* Shows the version dialog, which lists the versions of all components of the product, and returns its result when
 * the user has closed it; 0 if the thread cannot be taken up. */
NEMPDFUI_API int NemPdfUIShowVersion(void);

/* Sets a property. The A and the W form differ in how text comes in: as 8-bit text in the ANSI code page of the
 * process in the A form, as wide text in the W form. That goes for `name` and for the value of a text property.
 *
 * `value` points to an int32_t for a number, to the first character for a text. A null `value` stores 0 or an empty
 * text.
 *
 * A null or empty `name` is no name but an order: with an index of -1, 0 or 1 all properties of that set go back to 0
 * and to empty texts. With any other index nothing happens. The result is 1 in both cases. Whether `name` is empty is
 * decided by the first byte at it, in the W form too; so a wide name that begins with a character such as U+0100,
 * whose low byte is 0, counts as empty.
 *
 * Returns 1 when set; 2 (NEMPDFUI_BAD_HANDLE) if the handle is null or bad; 0 if the set has no property of that
 * name, `index` is none of -1, 0 and 1, an earlier error is answered for, or the thread cannot be taken up. A call
 * that fails leaves every value as it was. */
NEMPDFUI_API int NemPdfUISetPropertyA(NemPdfUIHandle handle, int32_t index, const char* name, const void* value);
NEMPDFUI_API int NemPdfUISetPropertyW(NemPdfUIHandle handle, int32_t index, const wchar_t* name, const void* value);

/* Gets a property. The A and the W form differ in how `name` comes in, and in nothing else: THE A FORM, TOO, DELIVERS
 * A TEXT AS WIDE CHARACTERS.
 *
 * `buffer` receives the value, `size` says how large it is:
 *
 *   number  `size` counts bytes and is at least 4. Four bytes are written, as a signed 32-bit integer.
 *   text    `size` counts wide characters and is at least the length of the text plus 2, one more than the zero at
 *           the end needs. The text and its zero are written. If the text is not empty, the last character of the
 *           buffer is set to zero too; a size of 0x3FFFFFFF characters or more (2 GB) is taken to
 *           mean "large enough", and then nothing is written behind the zero.
 *
 * Returns 1 when delivered. Returns 0 and writes nothing if `name` or `buffer` is null, the handle is null or bad,
 * `index` is none of -1, 0 and 1, the set has no property of that name, the buffer is too small, an earlier error is
 * answered for, or the thread cannot be taken up. */
NEMPDFUI_API int NemPdfUIGetPropertyA(NemPdfUIHandle handle, int32_t index, const char* name, void* buffer,
                                      int32_t size);
NEMPDFUI_API int NemPdfUIGetPropertyW(NemPdfUIHandle handle, int32_t index, const wchar_t* name, void* buffer,
                                      int32_t size);

/* Stores the version of the library at `version`; see NEMPDFUI_VERSION for its form.
 *
 * Returns 1 when stored; 0 if `version` is null or the thread cannot be taken up. A null `version` leaves an error
 * behind that the thread's next set or get call answers for. */
NEMPDFUI_API int NemPdfUIGetVersion(uint32_t* version);

#ifdef __cplusplus
}
#endif

#endif
