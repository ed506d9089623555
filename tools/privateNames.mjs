// SPDX-License-Identifier: MIT
import { dirname } from 'node:path';
import ts from 'typescript';

/**
 * Names of members that are private wherever they occur in a project's own files, so that a bundler
 * may shorten them: nothing else there has a property of that name, whoever declares it.
 */
export function privateNames(configFile) {
  const { config } = ts.readConfigFile(configFile, ts.sys.readFile);
  const { fileNames, options } = ts.parseJsonConfigFileContent(config, ts.sys, dirname(configFile));
  const program = ts.createProgram(fileNames, options);
  const checker = program.getTypeChecker();
  const known = new Map(); // whether each name is private wherever it was met
  const look = (node) => {
    const name = propertyName(node);
    if (name) known.set(name.text, (known.get(name.text) ?? true) && isPrivate(propertyOf(checker, node, name)));
    ts.forEachChild(node, look);
  };
  for (const file of program.getSourceFiles()) if (!file.isDeclarationFile) look(file);
  return [...known.keys()].filter((name) => known.get(name));
}

/** What a node reads, declares or sets a property by. */
function propertyName(node) {
  if (ts.isBindingElement(node)) return ts.isObjectBindingPattern(node.parent) ? named(node.propertyName ?? node.name) : undefined;
  if (ts.isElementAccessExpression(node)) return named(node.argumentExpression);
  if (ts.isParameter(node)) return ts.isParameterPropertyDeclaration(node, node.parent) ? node.name : undefined;
  const hasName = ts.isPropertyAccessExpression(node) || ts.isClassElement(node) || ts.isTypeElement(node) || ts.isObjectLiteralElement(node);
  return hasName ? named(node.name) : undefined;
}

const named = (node) => (node && (ts.isIdentifier(node) || ts.isStringLiteralLike(node)) ? node : undefined);

/** In `{ name }` the name is that of a variable too. */
function propertyOf(checker, node, name) {
  if (ts.isShorthandPropertyAssignment(node)) return undefined;
  if (ts.isBindingElement(node)) return checker.getTypeAtLocation(node.parent).getProperty(name.text);
  return checker.getSymbolAtLocation(name);
}

/** What nobody declares, as the entries of a record, is anybody's. */
const isPrivate = (symbol) =>
  Boolean(symbol?.declarations?.every((each) => ts.getCombinedModifierFlags(each) & ts.ModifierFlags.Private));
