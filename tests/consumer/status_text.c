/* Every status has words of its own, and so has what is none. */
#include <string.h>
#include <zelm/status_text.h>

int main(void) {
    const ZelmStatus statuses[] = {
        ZELM_OK, ZELM_ERR_SIZE, ZELM_ERR_NULL_PTR, ZELM_ERR_DIV_BY_ZERO, ZELM_ERR_NOT_POS_DEF, 1};
    for (int i = 0; i < 6; ++i) {
        if (strlen(zelmStatusText(statuses[i])) < 10) {
            return 1;
        }
        for (int j = 0; j < i; ++j) {
            if (strcmp(zelmStatusText(statuses[i]), zelmStatusText(statuses[j])) == 0) {
                return 1;
            }
        }
    }
    return strcmp(zelmStatusText(-12345), zelmStatusText(1)) != 0;
}
