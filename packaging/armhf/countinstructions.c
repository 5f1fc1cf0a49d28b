/* Counts the instructions that a program executes under qemu-user, all threads together: the emulator's plug-in
   interface, version 1. The number goes to standard error when the program ends. */
#include <inttypes.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

/* As far as it is used here; Debian has no package with the emulator's own header. */
typedef uint64_t qemu_plugin_id_t;
struct qemu_plugin_tb;
typedef struct qemu_info_t qemu_info_t;
enum qemu_plugin_op { QEMU_PLUGIN_INLINE_ADD_U64 };
extern size_t qemu_plugin_tb_n_insns(const struct qemu_plugin_tb *tb);
extern void qemu_plugin_register_vcpu_tb_trans_cb(qemu_plugin_id_t id,
                                                  void (*made)(qemu_plugin_id_t, struct qemu_plugin_tb *));
extern void qemu_plugin_register_vcpu_tb_exec_inline(struct qemu_plugin_tb *tb, enum qemu_plugin_op op, void *to,
                                                     uint64_t number);
extern void qemu_plugin_register_atexit_cb(qemu_plugin_id_t id, void (*ended)(qemu_plugin_id_t, void *), void *data);

__attribute__((visibility("default"))) int qemu_plugin_version = 1;

static uint64_t executed;

static void block_made(qemu_plugin_id_t id, struct qemu_plugin_tb *tb)
{
    (void)id;
    qemu_plugin_register_vcpu_tb_exec_inline(tb, QEMU_PLUGIN_INLINE_ADD_U64, &executed, qemu_plugin_tb_n_insns(tb));
}

static void program_ended(qemu_plugin_id_t id, void *data)
{
    (void)id;
    (void)data;
    fprintf(stderr, "instructions: %" PRIu64 "\n", executed);
}

__attribute__((visibility("default"))) int qemu_plugin_install(qemu_plugin_id_t id, const qemu_info_t *info, int argc,
                                                               char **argv)
{
    (void)info;
    (void)argc;
    (void)argv;
    qemu_plugin_register_vcpu_tb_trans_cb(id, block_made);
    qemu_plugin_register_atexit_cb(id, program_ended, NULL);
    return 0;
}
