// A thread with a stack of a size of the test's own: an overflow ends the process.
#pragma once

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>

/// Runs `body` on a thread whose stack has `size` bytes.
template <class Body>
void on_stack_of(std::size_t size, Body body) {
  pthread_attr_t attributes;
  ASSERT_EQ(0, pthread_attr_init(&attributes));
  ASSERT_EQ(0, pthread_attr_setstacksize(&attributes, size));
  pthread_t thread;
  const auto run = [](void* p) -> void* {
    (*static_cast<Body*>(p))();
    return nullptr;
  };
  ASSERT_EQ(0, pthread_create(&thread, &attributes, run, &body));
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}
