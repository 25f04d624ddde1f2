<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>Quitando &quot;%1&quot;... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>No se encontraron extensiones del navegador</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensiones del navegador</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>Buscar extensiones...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Actualizar</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Espere...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>Analizando extensiones del navegador...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Analizando...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>Mostrando %1 de %2 extensiones</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>%1 extensiones en total</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Quitar seleccionadas (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Quitar seleccionadas</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>El navegador está en ejecución</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Estos navegadores todavía tienen procesos en segundo plano en ejecución:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>Haga clic en &quot;Forzar cierre&quot; para finalizar todos los procesos relacionados y continuar, o ciérrelos manualmente y haga clic en &quot;Reintentar&quot;.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; todavía tiene procesos en segundo plano en ejecución.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>Aunque cierre la ventana del navegador, pueden quedar procesos en segundo plano. Haga clic en &quot;Forzar cierre&quot; para finalizarlos, o ciérrelos manualmente y haga clic en &quot;Reintentar&quot;.</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>Forzar cierre y quitar</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>No se pudo finalizar por completo: %1&lt;br&gt;Finalícelo manualmente en el Administrador de tareas y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>No se pudo finalizar %1 por completo. Finalice manualmente todos los procesos de %2 en el Administrador de tareas y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>No se puede finalizar el proceso</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>Quitar extensión</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>¿Seguro que desea quitar &lt;b&gt;%1&lt;/b&gt;?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;Se abrirá la página de extensiones de %2 y se copiará el ID de la extensión&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>Quitando extensión...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ Se quitó &quot;%1&quot;</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>No se pudo quitar automáticamente</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>No se puede quitar &lt;b&gt;%1&lt;/b&gt; automáticamente</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>Se abrió la página de extensiones de %1.&lt;br&gt;El ID de la extensión se copió al Portapapeles:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;Cuando la haya quitado manualmente, haga clic en &lt;b&gt;Actualizar&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Quitar varias</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>¿Seguro que desea quitar las &lt;b&gt;%1&lt;/b&gt; extensiones seleccionadas?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>Quitando %1 extensiones...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>Eliminación completada</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>Se quitaron correctamente &lt;b&gt;%1&lt;/b&gt; extensiones.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>La lista se actualizará automáticamente.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>No se pudieron quitar algunos elementos</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Correctas: &lt;b&gt;%1&lt;/b&gt;; con error: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>Elementos con error (quítelos manualmente desde el navegador):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>Deshabilitada</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 extensiones</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Limpieza de disco</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>Analice los archivos innecesarios del sistema y libere espacio en disco de forma segura</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>Analizando…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>Espere un momento</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 Volver a analizar</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ Seleccionar todo</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 Limpiar seleccionados</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Análisis completado</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ Limpieza completada: se liberaron &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ Anular selección</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; categorías seleccionadas  ·  Se liberarán unos &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>%1 categorías para limpiar, %2 en total</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1 categorías seleccionadas  ·  Se liberarán unos %2</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>Analizando…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Archivos temporales de Windows</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Caché de Windows Update</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Caché de Google Chrome</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Caché de Microsoft Edge</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Caché de Mozilla Firefox</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>Archivos de registro del sistema</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Caché de Prefetch</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>Caché de miniaturas</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>Archivos de volcado de memoria</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>Papelera de reciclaje</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Instalaciones anteriores de Windows</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Limpieza de disco</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>Limpiar archivos innecesarios</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Desinstalar programas</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>Administrar programas instalados</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Apps de Windows</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>Administrar apps UWP</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensiones del navegador</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>Administrar extensiones</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Resumen del sistema</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● En tiempo real</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>Leyendo información del sistema…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>Actualizaciones instaladas</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>Rendimiento en tiempo real</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>Acciones rápidas</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 núcleos</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>Tiempo activo: %1 h %2 min</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>Tiempo activo: %1 días %2 h</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>Eliminación forzada</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  Forzar eliminación de lo seleccionado</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>Eliminación forzada: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>Buscando elementos para eliminar...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  Revise cada elemento con atención. Los de riesgo alto están desmarcados de forma predeterminada.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Anular selección</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  No se encontró nada que eliminar.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>Eliminando los elementos seleccionados...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>Eliminación forzada completada</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>Se eliminaron la aplicación y sus archivos asociados.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>La ubicación de instalación %1 es una carpeta del sistema o del usuario: no se tocará.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>No se encontró nada que eliminar</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; elementos encontrados  ·  &lt;b&gt;%2&lt;/b&gt; recuperables</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Eliminación forzada completada  ·  se liberaron &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Listo ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>Carpeta de instalación</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>Datos de la aplicación</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>Acceso directo de inicio</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>Tarea programada</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servicio</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ Riesgo alto</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>Finalizando procesos...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>Analizando la carpeta de instalación...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>Analizando los datos de la aplicación...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>Analizando el Registro...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>Analizando los elementos de inicio...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>Analizando las tareas programadas...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>Analizando los servicios...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>Carpeta de instalación: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>Datos de la aplicación: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>Entrada de desinstalación en el Registro: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>Inicio en el Registro: %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>Acceso directo de inicio: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>Tarea programada: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Servicio de Windows: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>Eliminando: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Listo: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>No se pudieron cargar los vínculos de la página.

Póngase en contacto con el soporte técnico o vuelva a instalar el programa.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>No se puede abrir el navegador</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>No se pudo abrir el navegador predeterminado.

Copie el vínculo y ábralo manualmente:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>Error de configuración</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>Acerca de Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma cambiado</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>Se cambió el idioma a: %1
La aplicación se reiniciará ahora.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>Error al reiniciar</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>Reinicie la aplicación manualmente.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>Limpiar restos</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  Limpiar restos</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>Buscando archivos residuales...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Inicializando...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  ¡No se encontraron archivos residuales!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Anular selección</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analizando...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; elementos encontrados  ·  &lt;b&gt;%2&lt;/b&gt; recuperables</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>No se encontraron archivos residuales</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  Limpiar seleccionados</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Limpiando...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>Limpiando... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  Limpieza completada: se liberaron %1</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Listo ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>Seguro</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>Datos de aplicaciones huérfanos</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>Archivos de caché</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Archivos de registro</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Informes de errores</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Archivos temporales</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Resumen del sistema</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>Limpieza de disco</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Desinstalar programas</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Apps de Windows</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensiones del navegador</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  Acerca de Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  Idioma</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  Ayuda</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  Soporte técnico</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>Desinstalar programas</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>Gestión de programas instalados · Desinstalación por lotes · Limpieza de restos del Registro</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> programas</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> sin usar</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>Buscar programas instalados...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Sin usar</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ Actualizar</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Por tamaño</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Por fecha</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Por nombre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>Fecha de instalación</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>Haga clic en Actualizar para buscar los programas instalados.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Buscando programas instalados...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>Leyendo las entradas del Registro, espere...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ Limpiar restos</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>Desinstalar seleccionados</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analizando...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; programas</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>Seleccionados: &lt;b&gt;%1&lt;/b&gt;  ·  Se liberarán &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>Confirmar desinstalación</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>¿Desinstalar &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>No se encontró el desinstalador</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; no tiene un desinstalador propio.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>Use &lt;b&gt;Eliminación forzada&lt;/b&gt; para borrar la carpeta de instalación, las entradas del Registro y los archivos asociados.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Esta acción no se puede deshacer.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>Eliminación forzada…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>Desinstalando: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ Desinstalado: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Limpiar restos →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ No se pudo desinstalar: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>Error de desinstalación</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>No se pudo desinstalar &lt;b&gt;%1&lt;/b&gt; con su propio desinstalador.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>La &lt;b&gt;eliminación forzada&lt;/b&gt;:&lt;br&gt;• Finaliza todos los procesos en ejecución&lt;br&gt;• Elimina la carpeta de instalación&lt;br&gt;• Quita las entradas del Registro&lt;br&gt;• Limpia los elementos de inicio y los servicios&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Esta acción no se puede deshacer. Revise los elementos con atención antes de confirmar.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>No se encontró la información de instalación de &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Quítelo manualmente.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>Desinstalar varios</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>¿Desinstalar las %1 aplicaciones seleccionadas?
Esta acción no se puede deshacer.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>Quitar</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>No se pudo quitar (puede que se necesiten permisos de administrador)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>Es una aplicación protegida por el sistema: se quitó el registro del usuario actual, pero los componentes del sistema pueden restaurarse tras reiniciar.
Para eliminarla por completo, ejecute este programa como administrador.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Apps de Windows</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>Buscar aplicaciones...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Actualizar</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>Fecha de instalación</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>Quitando aplicación...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Espere...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Analizando...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Analizando aplicaciones de Windows...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Analizando aplicaciones de Windows... %1 encontradas</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>Mostrando %1 de %2 aplicaciones</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>%1 aplicaciones en total</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Quitar seleccionadas</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Quitar seleccionadas (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 aplicaciones seleccionadas</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>No se puede desinstalar Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge es un componente de Windows y no se puede desinstalar de esta forma.

Para cambiar el navegador predeterminado, vaya a
&quot;Configuración &gt; Aplicaciones &gt; Aplicaciones predeterminadas&quot;.</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>Quitar aplicación</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>¿Seguro que desea quitar &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Quitar varias</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>¿Quitar las %1 aplicaciones seleccionadas?
Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>Quitando %1 aplicaciones...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 aplicaciones</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>Quitando &quot;%1&quot;... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ Se quitaron %1 aplicaciones; actualizando...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>Error al quitar</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>No se pudo quitar ninguna aplicación.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>No se pudieron quitar algunas aplicaciones</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Correctas: &lt;b&gt;%1&lt;/b&gt;; con error: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>Detalles de los errores:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;Las aplicaciones preinstaladas del sistema (como Edge o Fotos) pueden estar protegidas y no se pueden quitar de esta forma.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
