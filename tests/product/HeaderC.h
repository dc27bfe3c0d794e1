/* What the C unit of these tests offers. */
#ifndef NEMPDF_TESTS_HEADERC_H
#define NEMPDF_TESTS_HEADERC_H

#ifdef __cplusplus
extern "C" {
#endif

int RunHostInC(void);

#ifdef __cplusplus
}
#endif

#endif
