"""Conan 2 recipe that packages the tree it lies in: conan create packaging/conan"""

import os
import re

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load, rmdir


class TarvConan(ConanFile):
    name = "tarv"
    license = "MIT"
    homepage = "https://tarv.invalid/"
    description = "Command-line parsing with abbreviations, actions and generated help"
    topics = ("command-line", "argument-parser", "options", "help")
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"

    def _tree(self):
        return os.path.join(self.recipe_folder, "..", "..")

    def set_version(self):
        project = load(self, os.path.join(self._tree(), "CMakeLists.txt"))
        self.version = re.search(r"project\(tarv\s+VERSION (\S+)", project).group(1)

    def export_sources(self):
        for pattern in ("CMakeLists.txt", "LICENSE", "cmake/*", "docs/*", "include/*", "src/*"):
            copy(self, pattern, self._tree(), self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def validate(self):
        if self.settings.os != "Linux" or self.settings.arch != "x86_64":
            raise ConanInvalidConfiguration("tarv is made for Linux on x86-64")
        check_min_cppstd(self, 17)

    def generate(self):
        toolchain = CMakeToolchain(self)
        for part in ("TESTS", "EXAMPLES", "BENCHMARKS", "PROGRAM"):
            toolchain.cache_variables["TARV_BUILD_" + part] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", self.source_folder, os.path.join(self.package_folder, "licenses"))
        CMake(self).install()
        for generated in ("cmake", "pkgconfig"):
            rmdir(self, os.path.join(self.package_folder, "lib", generated))

    def package_info(self):
        self.cpp_info.libs = ["tarv"]
        self.cpp_info.set_property("cmake_target_name", "tarv::tarv")
        self.cpp_info.set_property("pkg_config_name", "tarv")
