/* A plugin for qemu-user that counts executed instructions and prints their number when the program
 * ends. Debian packages no header for plugins, so the declarations that it uses are here. */
#include <inttypes.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

typedef uint64_t qemu_plugin_id_t;
struct qemu_plugin_tb;
struct qemu_info;
enum qemu_plugin_op { QEMU_PLUGIN_INLINE_ADD_U64 };

extern void qemu_plugin_register_vcpu_tb_trans_cb(qemu_plugin_id_t id,
                                                  void (*cb)(qemu_plugin_id_t id,
                                                             struct qemu_plugin_tb *block));
extern void qemu_plugin_register_vcpu_tb_exec_inline(struct qemu_plugin_tb *block,
                                                     enum qemu_plugin_op op, void *counter,
                                                     uint64_t added);
extern size_t qemu_plugin_tb_n_insns(struct qemu_plugin_tb const *block);
extern void qemu_plugin_register_atexit_cb(qemu_plugin_id_t id,
                                           void (*cb)(qemu_plugin_id_t id, void *data), void *data);

int qemu_plugin_version = 1;

static uint64_t executed;

static void translated(qemu_plugin_id_t id, struct qemu_plugin_tb *block) {
  (void)id;
  qemu_plugin_register_vcpu_tb_exec_inline(block, QEMU_PLUGIN_INLINE_ADD_U64, &executed,
                                           qemu_plugin_tb_n_insns(block));
}

static void ended(qemu_plugin_id_t id, void *data) {
  (void)id;
  (void)data;
  fprintf(stderr, "instructions: %" PRIu64 "\n", executed);
}

int qemu_plugin_install(qemu_plugin_id_t id, struct qemu_info const *info, int count,
                        char **arguments) {
  (void)info;
  (void)count;
  (void)arguments;
  qemu_plugin_register_vcpu_tb_trans_cb(id, translated);
  qemu_plugin_register_atexit_cb(id, ended, NULL);
  return 0;
}
